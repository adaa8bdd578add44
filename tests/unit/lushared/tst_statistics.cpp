// SPDX-License-Identifier: Apache-2.0
#include "SimulatedBed.h"

#include <ZrCore/ZrAsker.h>
#include <ZrCore/ZrClock.h>
#include <lushared/LuLog.h>
#include <lushared/LuModelHost.h>
#include <lushared/LuMonitorRegistry.h>
#include <lushared/LuStatisticsStore.h>
#include <panelcore/MonitorLink.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int BrightnessCode = 0x10;

/// A handle of a simulated monitor, without a model.
struct Handle
{
    explicit Handle(const QString& serial, MonitorLink::Waits waits = MonitorLink::Waits::None)
        : monitor(sim::Identity{u"TK30Z"_s, serial})
    {
        MonitorDescription description;
        description.id = u"TK30Z@"_s + serial;
        description.modelName = u"TK30Z"_s;
        description.serialNumber = serial;
        info = MonitorLink::create(description, monitor.makeBus(), waits);
        LuStatisticsStore::instance().attach(info);
    }
    ~Handle() { LuStatisticsStore::instance().letGo(info); }

    MonitorLink& link() { return MonitorLink::of(*info); }
    QJsonObject stats() { return link().statistics(); }
    int writes(const char* when) { return stats()["writes"_L1]["0x10"_L1][QLatin1String(when)].toInt(); }

    sim::Monitor monitor;
    QSharedPointer<MonitorInfo> info;
};

} // namespace

/// What is counted of a monitor's bus, how it is kept, and the breaker.
class TestStatistics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TestBed::instance(); }
    void init();
    void cleanup();
    void numbersGoOnInTheNextRun();
    void monitorsAreKeptApart();
    void theLedgerFollowsTheProgramsClock();
    void learntWaitsAreRestored();
    void aDamagedFileIsKeptAside_data();
    void aDamagedFileIsKeptAside();
    void aFolderThatCannotBeMadeCostsOnlyTheNumbers();
    void filesAreForTheUserAlone();
    void aFaultOfTheProgramIsStopped();
    void theBreakerRecoversOnTheProgramsClock();
    void aPersonIsNotStopped();
    void anotherFunctionsCirclesAreStopped();
    void whatASetterPostsIsAPersons();
    void theModelShowsThem();

private:
    QStringList files(const QString& filter = u"*"_s) const;
    std::unique_ptr<QTemporaryDir> m_folder;
    QStringList m_expected; ///< Patterns of lines that the log must hold at the end of a test.
    quint64 m_logSeen = 0;
};

void TestStatistics::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    LuStatisticsStore::instance().open(m_folder->path());
    ZrClock::instance().set(QDateTime(QDate(2026, 3, 2), QTime(10, 0)));
}

void TestStatistics::cleanup()
{
    ZrClock::instance().release();
    LuStatisticsStore::instance().open(QString());
    QStringList lines;
    const QList<LuLogLine> log = LuLog::lines(m_logSeen);
    for (const LuLogLine& line : log) {
        lines.append(line.text);
        m_logSeen = line.seq;
    }
    const QStringList expected = std::exchange(m_expected, {});
    for (const QString& pattern : expected)
        QCOMPARE(lines.filter(QRegularExpression(pattern)).size(), 1);
    m_folder.reset();
}

QStringList TestStatistics::files(const QString& filter) const
{
    return QDir(m_folder->filePath(u"statistics"_s)).entryList({filter}, QDir::Files, QDir::Name);
}

void TestStatistics::numbersGoOnInTheNextRun()
{
    qint64 transfers = 0;
    {
        Handle first(u"A"_s);
        for (int i = 0; i < 3; ++i)
            QVERIFY(first.link().setVCP(BrightnessCode, 10 + i));
        int value = 0;
        QVERIFY(!first.link().getVCP(0x01, value));
        transfers = first.stats()["transfers"_L1].toInteger();
        QVERIFY(transfers > 0);
    }
    LuStatisticsStore::instance().flush();
    Handle second(u"A"_s);
    QCOMPARE(second.stats()["transfers"_L1].toInteger(), transfers);
    QCOMPARE(second.writes("total"), 3);
    QCOMPARE(second.writes("today"), 3);
    QCOMPARE(second.stats()["errors"_L1]["unsupported code"_L1].toInt(), 1);
    QCOMPARE(second.stats()["thisRun"_L1]["transfers"_L1].toInteger(), 0);
    QVERIFY(second.link().setVCP(BrightnessCode, 20));
    QCOMPARE(second.writes("total"), 4);
    QCOMPARE(second.stats()["thisRun"_L1]["sets"_L1].toInteger(), 1);
}

void TestStatistics::monitorsAreKeptApart()
{
    {
        Handle one(u"A"_s);
        Handle two(u"B/../C"_s);
        QVERIFY(one.link().setVCP(BrightnessCode, 1));
        QVERIFY(two.link().setVCP(BrightnessCode, 1));
        QVERIFY(two.link().setVCP(BrightnessCode, 2));
    }
    LuStatisticsStore::instance().flush();
    QCOMPARE(files().size(), 2);
    QCOMPARE(Handle(u"A"_s).writes("total"), 1);
    QCOMPARE(Handle(u"B/../C"_s).writes("total"), 2);
    QCOMPARE(Handle(u"C"_s).writes("total"), 0);
}

void TestStatistics::theLedgerFollowsTheProgramsClock()
{
    Handle handle(u"A"_s);
    for (int day = 0; day < 40; ++day) {
        ZrClock::instance().set(QDateTime(QDate(2026, 3, 1).addDays(day), QTime(23, 59)));
        QVERIFY(handle.link().setVCP(BrightnessCode, day));
    }
    const QJsonObject days = handle.stats()["writesByDay"_L1].toObject();
    QCOMPARE(days.size(), 30);
    QCOMPARE(days["2026-04-09"_L1]["0x10"_L1].toInt(), 1);
    QVERIFY(!days.contains("2026-03-10"_L1));
    QCOMPARE(handle.writes("today"), 1);
    QCOMPARE(handle.writes("total"), 40);
    ZrClock::instance().set(QDateTime(QDate(2026, 4, 10), QTime(0, 1)));
    QCOMPARE(handle.writes("today"), 0);
}

void TestStatistics::learntWaitsAreRestored()
{
    {
        Handle slow(u"A"_s, MonitorLink::Waits::Real);
        sim::Fault fault;
        fault.kind = sim::FaultKind::Null;
        fault.count = 1;
        slow.monitor.armFault(fault);
        int value = 0;
        (void)slow.link().getVCP(BrightnessCode, value);
        slow.link().restore(slow.link().toKeep());
        QVERIFY(QJsonDocument(slow.stats()["learntWaits"_L1].toObject()).toJson().size() > 0);
    }
    LuStatisticsStore::instance().flush();
    // What the file says holds, whatever has taught it.
    QFile file(LuStatisticsStore::instance().fileOf(u"TK30Z@A"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QJsonObject kept = QJsonDocument::fromJson(file.readAll()).object();
    file.close();
    kept["learntWaits"_L1] = QJsonObject{{u"replyMs"_s, 110}, {u"afterSetMs"_s, 65}};
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QJsonDocument(kept).toJson());
    file.close();
    Handle again(u"A"_s, MonitorLink::Waits::Real);
    QCOMPARE(again.stats()["learntWaits"_L1]["replyMs"_L1].toInt(), 110);
    QCOMPARE(again.stats()["waits"_L1]["afterSetMs"_L1].toInt(), 65);
}

void TestStatistics::aDamagedFileIsKeptAside_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("not JSON") << QByteArray("transfers = 3");
    QTest::newRow("cut off") << QByteArray("{\"version\": 1, \"transf");
    QTest::newRow("a list") << QByteArray("[1, 2]");
    QTest::newRow("another version") << QByteArray("{\"version\": 99}");
    QTest::newRow("a negative number") << QByteArray("{\"version\": 1, \"transfers\": -4}");
    QTest::newRow("a fraction") << QByteArray("{\"version\": 1, \"sets\": 1.5}");
    QTest::newRow("a text for a number") << QByteArray("{\"version\": 1, \"gets\": \"7\"}");
    QTest::newRow("no code") << QByteArray("{\"version\": 1, \"writes\": {\"0x1FF\": 3}}");
    QTest::newRow("no day") << QByteArray("{\"version\": 1, \"writesByDay\": {\"2026-02-31\": {}}}");
    QTest::newRow("a wait without end")
        << QByteArray("{\"version\": 1, \"learntWaits\": {\"replyMs\": 99999}}");
}

void TestStatistics::aDamagedFileIsKeptAside()
{
    QFETCH(QByteArray, content);
    QFile file(LuStatisticsStore::instance().fileOf(u"TK30Z@A"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    m_expected.append(u"\\[LuStatisticsStore\\].*is damaged"_s);
    {
        Handle handle(u"A"_s);
        QCOMPARE(handle.stats()["transfers"_L1].toInteger(), 0);
        QVERIFY(handle.link().setVCP(BrightnessCode, 1));
    }
    LuStatisticsStore::instance().flush();
    QCOMPARE(files(u"*.damaged-*"_s).size(), 1);
    QFile aside(m_folder->filePath(u"statistics/"_s + files(u"*.damaged-*"_s).first()));
    QVERIFY(aside.open(QIODevice::ReadOnly));
    QCOMPARE(aside.readAll(), content);
    QCOMPARE(Handle(u"A"_s).writes("total"), 1);
}

void TestStatistics::aFolderThatCannotBeMadeCostsOnlyTheNumbers()
{
    QFile file(m_folder->filePath(u"file"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    m_expected.append(u"\\[LuStatisticsStore\\] cannot make"_s);
    LuStatisticsStore::instance().open(file.fileName());
    Handle handle(u"A"_s);
    QVERIFY(handle.link().setVCP(BrightnessCode, 1));
    QCOMPARE(handle.writes("total"), 1);
}

void TestStatistics::filesAreForTheUserAlone()
{
    {
        Handle handle(u"A"_s);
        QVERIFY(handle.link().setVCP(BrightnessCode, 1));
    }
    LuStatisticsStore::instance().flush();
    const QFile::Permissions permissions =
        QFile::permissions(LuStatisticsStore::instance().fileOf(u"TK30Z@A"_s));
    QVERIFY(!(permissions & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther)));
}

void TestStatistics::aFaultOfTheProgramIsStopped()
{
    Handle handle(u"A"_s);
    const ZrAsker::Scope program(ZrAsker::Program);
    for (int i = 0; i < 40; ++i)
        QVERIFY(handle.link().setVCP(BrightnessCode, i));
    m_expected.append(u"\\[MonitorLink\\] TK30Z@A code 0x10 was written 40 times"_s);
    for (int i = 40; i < 60; ++i)
        QVERIFY(!handle.link().setVCP(BrightnessCode, i));
    QCOMPARE(int(handle.monitor.value(BrightnessCode).value()), 39);
    QVERIFY(handle.link().setVCP(0x12, 1));
    const QJsonObject stats = handle.stats();
    QCOMPARE(stats["breaker"_L1]["trips"_L1].toInt(), 1);
    QCOMPARE(stats["breaker"_L1]["refused"_L1].toInt(), 20);
    QCOMPARE(stats["breaker"_L1]["closed"_L1][0]["code"_L1].toString(), u"0x10"_s);
    QCOMPARE(stats["errors"_L1]["refused after too many writes"_L1].toInt(), 20);
    QVERIFY(!handle.link().isSilent());
}

void TestStatistics::theBreakerRecoversOnTheProgramsClock()
{
    Handle handle(u"A"_s);
    const ZrAsker::Scope program(ZrAsker::Program);
    m_expected.append(u"\\[MonitorLink\\].*was written 40 times"_s);
    for (int i = 0; i < 50; ++i)
        (void)handle.link().setVCP(BrightnessCode, i);
    ZrClock::instance().advance(9999);
    QVERIFY(!handle.link().setVCP(BrightnessCode, 60));
    ZrClock::instance().advance(1);
    m_expected.append(u"takes writes of 0x10 again; 11 were refused"_s);
    QVERIFY(handle.link().setVCP(BrightnessCode, 61));
    QVERIFY(handle.stats()["breaker"_L1]["closed"_L1].toArray().isEmpty());
}

void TestStatistics::aPersonIsNotStopped()
{
    Handle handle(u"A"_s);
    const ZrAsker::Scope person(ZrAsker::Person);
    for (int i = 0; i < 500; ++i)
        QVERIFY(handle.link().setVCP(BrightnessCode, i % 100));
    QCOMPARE(handle.stats()["breaker"_L1]["trips"_L1].toInt(), 0);
}

void TestStatistics::anotherFunctionsCirclesAreStopped()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    for (int i = 0; i < 60; ++i) {
        QCOMPARE(LuModelHost::trigger(bed.module("LuAiContrast"), {{u"state"_s, i % 2 == 0}}), QString());
        QVERIFY(bed.idle());
    }
    QCOMPARE(bed.wire().filter(u"set 0xF3"_s).size(), 40);
}

void TestStatistics::whatASetterPostsIsAPersons()
{
    SimulatedBed bed;
    bed.launch();
    QVERIFY(bed.idle());
    bed.forget();
    for (int i = 0; i < 60; ++i) {
        bed.set("LuAiContrast", "state", i % 2 == 0);
        QVERIFY(bed.idle());
    }
    QCOMPARE(bed.wire().filter(u"set 0xF3"_s).size(), 60);
}

void TestStatistics::theModelShowsThem()
{
    SimulatedBed bed;
    LuMonitorModel& model = bed.launch();
    QVERIFY(bed.idle());
    const QVariantMap map = model.property("statistics").toMap();
    QVERIFY(map.value(u"transfers"_s).toLongLong() > 0);
    QCOMPARE(QJsonObject::fromVariantMap(map), LuModelHost::statistics(&model));
}

QTEST_MAIN(TestStatistics)
#include "tst_statistics.moc"
