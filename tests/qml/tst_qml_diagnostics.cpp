// SPDX-License-Identifier: Apache-2.0
#include "LuDiagnostics.h"
#include "Shell.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QQuickItem>
#include <QSignalSpy>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

LuDiagnosticFacts::Monitor monitor(const QString& serial)
{
    LuDiagnosticFacts::Monitor monitor;
    monitor.id = u"TK30Z@"_s + serial;
    monitor.model = u"TK30Z"_s;
    monitor.serial = serial;
    monitor.nickName = u"Desk of Martha"_s;
    monitor.connection = u"card0-DP-1"_s;
    monitor.supported = true;
    monitor.statistics = {
        {u"bus"_s, u"i2c-4"_s},
        {u"transfers"_s, 1200},
        {u"retries"_s, 3},
        {u"errors"_s, QJsonObject{{u"no reply"_s, 2}, {u"bad checksum"_s, 1}}},
        {u"learntWaits"_s, QJsonObject{{u"replyMs"_s, 65}, {u"afterSetMs"_s, 0}}},
        {u"writes"_s, QJsonObject{{u"0x10"_s, QJsonObject{{u"today"_s, 5}, {u"total"_s, 9}}},
                                  {u"0x12"_s, QJsonObject{{u"today"_s, 0}, {u"total"_s, 9}}}}},
        {u"writesToday"_s, 5},
        {u"breaker"_s,
         QJsonObject{{u"trips"_s, 1}, {u"closed"_s, QJsonArray{QJsonObject{{u"code"_s, u"0x10"_s}}}}}},
    };
    return monitor;
}

QString valueOf(const LuDiagnosticFacts::Monitor& monitor, const QString& name)
{
    const auto lines = LuReport::lines(monitor);
    for (const LuReport::Line& line : lines) {
        if (line.name == name)
            return line.value;
    }
    return u"(missing)"_s;
}

} // namespace

/// The page "Diagnostics" and the report for a bug ticket.
class TestDiagnostics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void linesTellAMonitorsState();
    void aQuietMonitorHasNothingToReport();
    void aReportHoldsNothingPersonal_data();
    void aReportHoldsNothingPersonal();
    void aReportStillTellsWhatIsNeeded();
    void otherLinesOfTheLogStayAtHome();
    void thePageShowsMonitorsAndTroubles();
    void factsAreLookedUpOnlyWhileSomebodyLooks();
    void exportWritesAFileAndSaysWhere();
    void exportThatFailsSaysWhy();
    void thePageIsDrawn();

private:
    QQuickWindow* open();
    QQuickItem* item(const char* name) const;
    QStringList texts() const;

    LuDiagnosticFacts m_facts;
    int m_asked = 0;
    std::optional<Shell> m_shell;
    QQuickWindow* m_window = nullptr;
};

void TestDiagnostics::init()
{
    m_facts = LuDiagnosticFacts();
    m_facts.monitors = {monitor(u"SN4711"_s)};
    m_facts.troubles = {u"The group i2c may use the buses, and you are not in it."_s};
    m_facts.shownTroubles = {u"Sie sind nicht in der Gruppe i2c."_s};
    m_facts.versions = {u"Lumen Desk 1.0"_s};
    m_asked = 0;
    m_shell.emplace(QList<FakeMonitor*>());
    LuDiagnostics::instance()->setSource([this] {
        ++m_asked;
        return m_facts;
    });
}

void TestDiagnostics::cleanup()
{
    LuDiagnostics::instance()->setFolder({});
    m_shell.reset();
    m_window = nullptr;
    LuDiagnostics::instance()->setSource({});
    QCOMPARE(Shell::takeWarnings(), QStringList());
}

QQuickWindow* TestDiagnostics::open()
{
    m_shell->engine.load(QUrl(u"qrc:/tests/Diagnostics.qml"_s));
    m_window = qobject_cast<QQuickWindow*>(m_shell->engine.rootObjects().constLast());
    return m_window && QTest::qWaitForWindowExposed(m_window, PatienceMs) ? m_window : nullptr;
}

QQuickItem* TestDiagnostics::item(const char* name) const
{
    return m_shell->item(QLatin1String(name));
}

QStringList TestDiagnostics::texts() const
{
    QStringList found;
    QList<QQuickItem*> items{m_window->contentItem()};
    while (!items.isEmpty()) {
        const QQuickItem* each = items.takeFirst();
        const QString text = each->property("text").toString();
        if (!text.isEmpty())
            found.append(text);
        items.append(each->childItems());
    }
    return found;
}

void TestDiagnostics::linesTellAMonitorsState()
{
    const LuDiagnosticFacts::Monitor one = m_facts.monitors.first();
    QCOMPARE(valueOf(one, u"Connection"_s), u"card0-DP-1 on i2c-4"_s);
    QCOMPARE(valueOf(one, u"Condition"_s), u"answers"_s);
    QCOMPARE(valueOf(one, u"Screen"_s), u"(missing)"_s);
    LuDiagnosticFacts::Monitor shown = one;
    shown.screen = u"DP-2-8"_s;
    QCOMPARE(valueOf(shown, u"Screen"_s), u"DP-2-8"_s);
    QCOMPARE(LuReport::lines(shown).size(), LuReport::lines(one).size() + 1);
    QCOMPARE(valueOf(one, u"Transfers"_s), u"1200"_s);
    QCOMPARE(valueOf(one, u"Retries"_s), u"3"_s);
    QCOMPARE(valueOf(one, u"Errors"_s), u"bad checksum: 1, no reply: 2"_s);
    QCOMPARE(valueOf(one, u"Learnt waits"_s), u"65 ms before a reply"_s);
    QCOMPARE(valueOf(one, u"Writes today"_s), u"5 (0x10: 5)"_s);
    QCOMPARE(valueOf(one, u"Circuit breaker"_s), u"open for 0x10"_s);
}

void TestDiagnostics::aQuietMonitorHasNothingToReport()
{
    LuDiagnosticFacts::Monitor quiet;
    quiet.model = u"TK10"_s;
    quiet.statistics = {{u"asleep"_s, true}};
    QCOMPARE(valueOf(quiet, u"Connection"_s), u"unknown"_s);
    QCOMPARE(valueOf(quiet, u"Condition"_s), u"asleep"_s);
    QCOMPARE(valueOf(quiet, u"Errors"_s), u"none"_s);
    QCOMPARE(valueOf(quiet, u"Learnt waits"_s), u"none"_s);
    QCOMPARE(valueOf(quiet, u"Writes today"_s), u"0"_s);
    QCOMPARE(valueOf(quiet, u"Circuit breaker"_s), u"closed"_s);
}

void TestDiagnostics::aReportHoldsNothingPersonal_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("secret");
    const QString home = QDir::homePath();
    QTest::newRow("serial") << u"[RealMonitors] TK30Z@SN4711 sleeps"_s << u"SN4711"_s;
    QTest::newRow("serial in other letters") << u"[RealMonitors] sn4711 sleeps"_s << u"sn4711"_s;
    QTest::newRow("serial of a monitor that has gone")
        << u"[LuMonitorRegistry] monitor TK20@GONE99 is gone"_s << u"GONE99"_s;
    QTest::newRow("name of a monitor") << u"[LuMonitorModel] Desk of Martha"_s << u"Martha"_s;
    QTest::newRow("home folder") << u"[LuStatisticsStore] cannot write "_s + home + u"/.local/x"_s
                                 << home + u'/';
    QTest::newRow("another home") << u"[LuStatisticsStore] cannot write /home/otto/x"_s << u"otto"_s;
    QTest::newRow("host") << u"[RealMonitors] on "_s + QSysInfo::machineHostName()
                          << QSysInfo::machineHostName();
    QTest::newRow("user") << u"[RealMonitors] add grete to the group i2c"_s << u"grete"_s;
}

void TestDiagnostics::aReportHoldsNothingPersonal()
{
    QFETCH(QString, line);
    QFETCH(QString, secret);
    const QByteArray user = qgetenv("USER");
    qputenv("USER", "grete");
    m_facts.log = {line};
    m_facts.troubles.append(line);
    const QString report = LuReport::text(m_facts);
    user.isNull() ? qunsetenv("USER") : qputenv("USER", user);
    QVERIFY2(!report.contains(secret, Qt::CaseInsensitive), qPrintable(report));
}

void TestDiagnostics::aReportStillTellsWhatIsNeeded()
{
    m_facts.monitors.append(monitor(u"SN4712"_s));
    m_facts.log = {u"info: [RealMonitors] TK30Z@SN4711 at card0-DP-1 on i2c-4"_s};
    const QString report = LuReport::text(m_facts);
    for (const QString& part :
         {u"Monitor 1: TK30Z"_s, u"Monitor 2: TK30Z"_s, u"card0-DP-1 on i2c-4"_s, u"no reply: 2"_s,
          u"0x10: 5"_s, u"open for 0x10"_s, u"not in it"_s, u"TK30Z@(serial)"_s, u"Lumen Desk 1.0"_s})
        QVERIFY2(report.contains(part), qPrintable(part + u'\n' + report));
}

void TestDiagnostics::otherLinesOfTheLogStayAtHome()
{
    m_facts.log = {u"[LuDirectSearch] search: how to resign"_s};
    QVERIFY(!LuReport::text(m_facts).contains(u"resign"_s));
}

void TestDiagnostics::thePageShowsMonitorsAndTroubles()
{
    QVERIFY(open());
    const QStringList shown = texts();
    for (const QString& part : {u"Desk of Martha (TK30Z)"_s, u"Connection"_s, u"card0-DP-1 on i2c-4"_s,
                                u"bad checksum: 1, no reply: 2"_s, m_facts.shownTroubles.first()})
        QVERIFY2(shown.contains(part), qPrintable(part + u" not in "_s + shown.join(u'|')));
    m_facts.monitors.first().screen = LuReport::doubtfulScreen();
    LuDiagnostics::instance()->refresh();
    QTRY_VERIFY(texts().contains(u"not told from an equal monitor's"_s));
    const QVariantList lines =
        LuDiagnostics::instance()->monitors().first().toMap().value(u"lines"_s).toList();
    const auto line = std::find_if(lines.begin(), lines.end(), [](const QVariant& each) {
        return each.toMap().value(u"name"_s) == u"Screen"_s;
    });
    QVERIFY(line != lines.end() && line->toMap().value(u"bad"_s).toBool());
    m_facts.monitors.clear();
    m_facts.shownTroubles.clear();
    LuDiagnostics::instance()->refresh();
    QTRY_VERIFY(texts().contains(u"No monitor is connected."_s));
}

void TestDiagnostics::factsAreLookedUpOnlyWhileSomebodyLooks()
{
    QVERIFY(!LuDiagnostics::instance()->isWatched());
    QVERIFY(open());
    QTRY_VERIFY(LuDiagnostics::instance()->isWatched());
    const int before = m_asked;
    QTRY_VERIFY_WITH_TIMEOUT(m_asked > before, 20'000);
    m_window->hide();
    QTRY_VERIFY(!LuDiagnostics::instance()->isWatched());
}

void TestDiagnostics::exportWritesAFileAndSaysWhere()
{
    const QTemporaryDir folder;
    LuDiagnostics::instance()->setFolder(folder.filePath(u"new"_s));
    QVERIFY(open());
    QVERIFY(QMetaObject::invokeMethod(item("exportReport"), "assistivePress"));
    const QStringList files = QDir(folder.filePath(u"new"_s)).entryList(QDir::Files);
    QCOMPARE(files.size(), 1);
    QFile file(folder.filePath(u"new/"_s + files.first()));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()), LuDiagnostics::instance()->report());
    QTRY_VERIFY(item("exportResult")->property("text").toString().contains(files.first()));
    // A second one takes nothing from the first.
    QVERIFY(LuDiagnostics::instance()->exportReport());
    QCOMPARE(QDir(folder.filePath(u"new"_s)).entryList(QDir::Files).size(), 2);
}

void TestDiagnostics::exportThatFailsSaysWhy()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"file"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    LuDiagnostics::instance()->setFolder(file.fileName());
    QVERIFY(open());
    QVERIFY(!LuDiagnostics::instance()->exportReport());
    QTRY_VERIFY(item("exportResult")->property("text").toString().contains(u"could not be written"_s));
    QVERIFY(LuDiagnostics::instance()->exportedFile().isEmpty());
}

void TestDiagnostics::thePageIsDrawn()
{
    m_facts.monitors.first().screen = LuReport::doubtfulScreen();
    QVERIFY(open());
    const QDir folder(qEnvironmentVariable("LUMEN_PICTURES", QDir::tempPath()));
    for (const QString& theme : {u"light"_s, u"dark"_s}) {
        m_shell->context.setTheme(theme);
        const QImage picture = m_window->grabWindow();
        QVERIFY(!picture.isNull());
        QCOMPARE(picture.pixelColor(2, 2).lightness() > 128, theme == "light"_L1);
        if (qEnvironmentVariableIsSet("LUMEN_PICTURES"))
            QVERIFY(picture.save(folder.filePath(u"diagnostics-%1.png"_s.arg(theme))));
    }
    m_shell->context.setTheme(u"system"_s);
}

QTEST_MAIN(TestDiagnostics)
#include "tst_qml_diagnostics.moc"
