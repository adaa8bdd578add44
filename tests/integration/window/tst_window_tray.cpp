// SPDX-License-Identifier: Apache-2.0
#include "DeskProcess.h"

#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QtTest>

#include "app/tray/TrayTypes.h"

using namespace Qt::StringLiterals;

namespace {

/// A session bus of the test's own.
class SessionBus
{
public:
    ~SessionBus()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }

    bool start()
    {
        m_process.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        QByteArray address;
        while (!address.endsWith('\n')) {
            if (!m_process.waitForReadyRead(20000))
                return false;
            address += m_process.readAllStandardOutput();
        }
        m_address = QString::fromLatin1(address.trimmed());
        return true;
    }

    QString address() const { return m_address; }

private:
    QProcess m_process;
    QString m_address;
};

} // namespace

/// The part of a desktop that shows icons: it keeps the names of those that register.
class Watcher : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")

public:
    using QObject::QObject;
    QStringList items;

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString& service) { items << service; }
};

/// The icon in the tray, with a tray that the test plays.
class TestTray : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void theIconRegistersWithTheTray();
    void theIconComesWithATrayThatStartsLater();
    void aClickShowsAndHidesTheWindow();
    void theWheelChangesTheBrightness_data();
    void theWheelChangesTheBrightness();
    void fineWheelsAddUp();
    void theMenuChoosesTheMonitor();
    void theMenuOpensTheSettings();
    void theMenuEndsTheProgram();
    void closingLeavesTheProgramRunning();
    void closingEndsItWhereThatIsChosen();
    void aProgramThatStartsHiddenShowsNoWindow();
    void whatTheBusSendsDoesNotEndTheProgram();

private:
    bool startTray();
    void startDesk(const QStringList& more = {});
    QString item();
    QVariant property(const QString& name);
    QDBusMessage call(const QString& path, const QString& interface, const QString& method,
                      const QVariantList& arguments = {});
    TrayLayout menu();
    /// Clicks the entry of that label; false if there is none.
    bool clickMenu(const QString& label);
    bool isShown(const QString& window);
    int brightness() { return m_desk->client().get(u"brightness.displayBrightness"_s).toInt(); }

    std::unique_ptr<SessionBus> m_bus;
    std::unique_ptr<QDBusConnection> m_connection;
    std::unique_ptr<Watcher> m_watcher;
    std::unique_ptr<DeskProcess> m_desk;
    int m_number = 0;
};

void TestTray::initTestCase()
{
    registerTrayTypes();
}

void TestTray::init()
{
    m_bus = std::make_unique<SessionBus>();
    QVERIFY(m_bus->start());
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus->address().toLatin1());
    m_connection = std::make_unique<QDBusConnection>(
        QDBusConnection::connectToBus(m_bus->address(), u"test%1"_s.arg(++m_number)));
    QVERIFY2(m_connection->isConnected(), qPrintable(m_connection->lastError().message()));
    if (qstrcmp(QTest::currentTestFunction(), "theIconComesWithATrayThatStartsLater") != 0)
        QVERIFY(startTray());
}

void TestTray::cleanup()
{
    if (m_desk && m_desk->isRunning()) {
        QCOMPARE(m_desk->client().call(u"ui.warnings"_s).result.toArray(), QJsonArray());
        QCOMPARE(m_desk->stop(), 0);
    }
    m_desk.reset();
    m_watcher.reset();
    QDBusConnection::disconnectFromBus(u"test%1"_s.arg(m_number));
    m_connection.reset();
    m_bus.reset();
}

bool TestTray::startTray()
{
    m_watcher = std::make_unique<Watcher>();
    return m_connection->registerObject(u"/StatusNotifierWatcher"_s, m_watcher.get(),
                                        QDBusConnection::ExportAllSlots) &&
           m_connection->registerService(u"org.kde.StatusNotifierWatcher"_s);
}

void TestTray::startDesk(const QStringList& more)
{
    m_desk = std::make_unique<DeskProcess>();
    QVERIFY2(m_desk->start(QStringList{u"--simulate"_s, u"TK30Z,TK20@A1"_s, u"--ddc-timing"_s, u"fast"_s,
                                       u"--services"_s, u"simulated"_s} +
                           more),
             qPrintable(m_desk->errors()));
    QVERIFY(m_desk->client().call(u"idle"_s).ok());
}

QString TestTray::item()
{
    return m_watcher && !m_watcher->items.isEmpty() ? m_watcher->items.last() : QString();
}

QDBusMessage TestTray::call(const QString& path, const QString& interface, const QString& method,
                            const QVariantList& arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(item(), path, interface, method);
    message.setArguments(arguments);
    return m_connection->call(message, QDBus::BlockWithGui);
}

QVariant TestTray::property(const QString& name)
{
    const QDBusReply<QDBusVariant> reply =
        call(u"/StatusNotifierItem"_s, u"org.freedesktop.DBus.Properties"_s, u"Get"_s,
             {u"org.kde.StatusNotifierItem"_s, name});
    return reply.value().variant();
}

TrayLayout TestTray::menu()
{
    const QDBusMessage reply =
        call(u"/MenuBar"_s, u"com.canonical.dbusmenu"_s, u"GetLayout"_s, {0, -1, QStringList()});
    return qdbus_cast<TrayLayout>(reply.arguments().value(1));
}

bool TestTray::clickMenu(const QString& label)
{
    for (const QVariant& child : menu().children) {
        const auto entry = child.value<TrayLayout>();
        if (entry.properties.value(u"label"_s).toString() != label)
            continue;
        call(u"/MenuBar"_s, u"com.canonical.dbusmenu"_s, u"Event"_s,
             {entry.id, u"clicked"_s, QVariant::fromValue(QDBusVariant(QString())), 0U});
        return true;
    }
    return false;
}

bool TestTray::isShown(const QString& window)
{
    for (const QJsonValue& each : m_desk->client().call(u"ui.windows"_s).result.toArray()) {
        if (each[u"name"_s].toString() == window && each[u"visible"_s].toBool())
            return true;
    }
    return false;
}

void TestTray::theIconRegistersWithTheTray()
{
    startDesk();
    QTRY_VERIFY(!item().isEmpty());
    QVERIFY(item().startsWith(u"org.kde.StatusNotifierItem-"_s));
    QCOMPARE(property(u"Category"_s).toString(), u"Hardware"_s);
    QCOMPARE(property(u"Id"_s).toString(), u"lumen-desk"_s);
    QCOMPARE(property(u"Status"_s).toString(), u"Active"_s);
    QCOMPARE(property(u"ItemIsMenu"_s).toBool(), false);
    const auto images = qdbus_cast<TrayImages>(property(u"IconPixmap"_s));
    QVERIFY(images.size() >= 3);
    for (const TrayImage& image : images) {
        QCOMPARE(image.data.size(), image.width * image.height * 4);
        QVERIFY(image.data.count('\0') < image.data.size());
    }
    const auto toolTip = qdbus_cast<TrayToolTip>(property(u"ToolTip"_s));
    QCOMPARE(toolTip.title, u"Lumen Desk"_s);
    QCOMPARE(toolTip.text, u"TK30Z"_s);
}

void TestTray::theIconComesWithATrayThatStartsLater()
{
    startDesk();
    QVERIFY(startTray());
    QTRY_COMPARE(m_watcher->items.size(), 1);
    // A desktop's shell that crashes and comes back shows it again.
    QVERIFY(m_connection->unregisterService(u"org.kde.StatusNotifierWatcher"_s));
    QVERIFY(m_connection->registerService(u"org.kde.StatusNotifierWatcher"_s));
    QTRY_COMPARE(m_watcher->items.size(), 2);
}

void TestTray::aClickShowsAndHidesTheWindow()
{
    startDesk();
    QTRY_VERIFY(!item().isEmpty());
    QVERIFY(m_desk->client().call(u"ui.hide"_s).ok());
    QVERIFY(!isShown(u"mainWindow"_s));
    call(u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem"_s, u"Activate"_s, {10, 10});
    QTRY_VERIFY(isShown(u"mainWindow"_s));
    call(u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem"_s, u"Activate"_s, {10, 10});
    QTRY_VERIFY(!isShown(u"mainWindow"_s));
}

void TestTray::theWheelChangesTheBrightness_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("delta");
    QTest::addColumn<QString>("orientation");
    QTest::addColumn<int>("after");
    QTest::newRow("a notch up") << 40 << 120 << u"vertical"_s << 45;
    QTest::newRow("two notches down") << 40 << -240 << u"Vertical"_s << 30;
    QTest::newRow("not above the top") << 98 << 240 << u"vertical"_s << 100;
    QTest::newRow("not below the bottom") << 3 << -120 << u"vertical"_s << 0;
    QTest::newRow("not across") << 40 << 120 << u"horizontal"_s << 40;
}

void TestTray::theWheelChangesTheBrightness()
{
    QFETCH(int, before);
    QFETCH(int, delta);
    QFETCH(QString, orientation);
    QFETCH(int, after);
    startDesk();
    QTRY_VERIFY(!item().isEmpty());
    QVERIFY(m_desk->client()
                .call(u"set"_s, {{u"path"_s, u"brightness.displayBrightness"_s}, {u"value"_s, before}})
                .ok());
    QVERIFY(m_desk->client().call(u"idle"_s).ok());
    QCOMPARE(brightness(), before);
    call(u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem"_s, u"Scroll"_s, {delta, orientation});
    QVERIFY(m_desk->client().call(u"idle"_s).ok());
    QCOMPARE(brightness(), after);
}

void TestTray::fineWheelsAddUp()
{
    startDesk();
    QTRY_VERIFY(!item().isEmpty());
    QVERIFY(m_desk->client()
                .call(u"set"_s, {{u"path"_s, u"brightness.displayBrightness"_s}, {u"value"_s, 40}})
                .ok());
    QVERIFY(m_desk->client().call(u"idle"_s).ok());
    for (int i = 0; i < 5; ++i)
        call(u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem"_s, u"Scroll"_s, {50, u"vertical"_s});
    QVERIFY(m_desk->client().call(u"idle"_s).ok());
    QCOMPARE(brightness(), 50);
}

void TestTray::theMenuChoosesTheMonitor()
{
    startDesk();
    QTRY_VERIFY(!item().isEmpty());
    QStringList labels;
    for (const QVariant& child : menu().children) {
        const auto entry = child.value<TrayLayout>();
        labels << (entry.properties.value(u"type"_s).toString() == "separator"_L1
                       ? u"-"_s
                       : entry.properties.value(u"label"_s).toString());
    }
    QCOMPARE(labels, (QStringList{u"Show Lumen Desk"_s, u"-"_s, u"TK30Z"_s, u"TK20"_s, u"-"_s, u"Settings"_s,
                                  u"-"_s, u"Quit"_s}));
    QVERIFY(clickMenu(u"TK20"_s));
    QTRY_COMPARE(m_desk->client().get(u"id"_s).toString(), u"TK20@A1"_s);
    bool checked = false;
    for (const QVariant& child : menu().children) {
        const auto entry = child.value<TrayLayout>();
        if (entry.properties.value(u"label"_s).toString() == "TK20"_L1)
            checked = entry.properties.value(u"toggle-state"_s).toInt() == 1;
    }
    QVERIFY(checked);
}

void TestTray::theMenuOpensTheSettings()
{
    startDesk();
    QTRY_VERIFY(!item().isEmpty());
    QVERIFY(clickMenu(u"Settings"_s));
    QTRY_VERIFY(isShown(u"settingsWindow"_s));
}

void TestTray::theMenuEndsTheProgram()
{
    startDesk();
    QTRY_VERIFY(!item().isEmpty());
    QVERIFY(clickMenu(u"Quit"_s));
    QVERIFY(m_desk->waitForEnd());
    QCOMPARE(m_desk->process().exitCode(), 0);
}

void TestTray::closingLeavesTheProgramRunning()
{
    startDesk();
    QTRY_VERIFY(!item().isEmpty());
    QVERIFY(m_desk->client().call(u"ui.press"_s, {{u"name"_s, u"Close"_s}}).ok());
    QTRY_VERIFY(!isShown(u"mainWindow"_s));
    QVERIFY(m_desk->isRunning());
    QVERIFY(clickMenu(u"Show Lumen Desk"_s));
    QTRY_VERIFY(isShown(u"mainWindow"_s));
}

void TestTray::closingEndsItWhereThatIsChosen()
{
    startDesk();
    QVERIFY(m_desk->client().call(u"ui.open"_s, {{u"section"_s, u"general"_s}}).ok());
    QVERIFY(m_desk->client()
                .call(u"ui.press"_s,
                      {{u"name"_s, u"Keep running when the window is closed"_s}, {u"role"_s, u"switch"_s}})
                .ok());
    (void)m_desk->client().send(u"ui.press"_s, {{u"name"_s, u"Close"_s}});
    QVERIFY(m_desk->waitForEnd());
    QCOMPARE(m_desk->process().exitCode(), 0);
}

void TestTray::aProgramThatStartsHiddenShowsNoWindow()
{
    startDesk({u"--hidden"_s});
    QTRY_VERIFY(!item().isEmpty());
    QVERIFY(!isShown(u"mainWindow"_s));
    call(u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem"_s, u"Activate"_s, {0, 0});
    QTRY_VERIFY(isShown(u"mainWindow"_s));
}

void TestTray::whatTheBusSendsDoesNotEndTheProgram()
{
    startDesk();
    QTRY_VERIFY(!item().isEmpty());
    for (const int id : {-1, 0, 3, 999999}) {
        call(u"/MenuBar"_s, u"com.canonical.dbusmenu"_s, u"GetLayout"_s, {id, -5, QStringList()});
        call(u"/MenuBar"_s, u"com.canonical.dbusmenu"_s, u"GetProperty"_s, {id, u"label"_s});
        if (id != 3)
            call(u"/MenuBar"_s, u"com.canonical.dbusmenu"_s, u"Event"_s,
                 {id, u"clicked"_s, QVariant::fromValue(QDBusVariant(7)), 0U});
    }
    call(u"/MenuBar"_s, u"com.canonical.dbusmenu"_s, u"GetLayout"_s, {u"text"_s});
    call(u"/StatusNotifierItem"_s, u"org.kde.StatusNotifierItem"_s, u"Scroll"_s, {u"text"_s});
    QVERIFY(m_desk->client().call(u"idle"_s).ok());
    QVERIFY(m_desk->isRunning());
}

QTEST_GUILESS_MAIN(TestTray)
#include "tst_window_tray.moc"
