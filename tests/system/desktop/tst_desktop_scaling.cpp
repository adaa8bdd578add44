// SPDX-License-Identifier: Apache-2.0
#include "DesktopTest.h"
#include "LogCount.h"

#include <LuShared/LuPlatform.h>
#include <LuShared/LuPlatformNotifications.h>
#include <lushared/services/ServiceRegistry.h>
#include <services/api/DesktopEvents.h>
#include <services/x11/Connection.h>
#include <services/x11/X11Services.h>
#include <services/x11/Xsettings.h>

#include <QSignalSpy>
#include <QtEndian>

#include <csignal>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using services::x11::Connection;

namespace {

/// A session bus that stands before the application object does, and falls after it. It starts services as a
/// desktop's bus does: the settings of Xfce are one.
class SessionBus
{
public:
    bool start(const std::string& folder)
    {
        const std::string address = "unix:path=" + folder + "/bus";
        const std::string argument = "--address=" + address;
        int told[2];
        if (pipe(told) != 0)
            return false;
        const std::string descriptor = "--print-address=" + std::to_string(told[1]);
        m_process = fork();
        if (m_process == 0) {
            prctl(PR_SET_PDEATHSIG, SIGTERM);
            close(told[0]);
            execlp("dbus-daemon", "dbus-daemon", "--session", "--nofork", "--nopidfile", argument.c_str(),
                   descriptor.c_str(), nullptr);
            _exit(127);
        }
        close(told[1]);
        pollfd waiting = {told[0], POLLIN, 0};
        char first = 0;
        const bool came = poll(&waiting, 1, PatienceMs) > 0 && read(told[0], &first, 1) == 1;
        close(told[0]);
        qputenv("DBUS_SESSION_BUS_ADDRESS", address.c_str());
        return came;
    }
    ~SessionBus()
    {
        if (m_process <= 0)
            return;
        kill(m_process, SIGTERM);
        waitpid(m_process, nullptr, 0);
    }

private:
    pid_t m_process = -1;
};

/// Keys as GNOME's own, of desktops that are not installed here.
constexpr const char* Schemas = R"(<schemalist>
  <schema id="org.cinnamon.desktop.interface" path="/org/cinnamon/desktop/interface/">
    <key name="text-scaling-factor" type="d"><range min="0.5" max="3.0"/><default>1.0</default></key>
  </schema>
  <schema id="org.mate.font-rendering" path="/org/mate/desktop/font-rendering/">
    <key name="dpi" type="d"><default>0.0</default></key>
  </schema>
</schemalist>)";

template <class Number>
QByteArray bytesOf(Number number, bool isBig)
{
    QByteArray bytes(sizeof number, '\0');
    isBig ? qToBigEndian(number, bytes.data()) : qToLittleEndian(number, bytes.data());
    return bytes;
}

} // namespace

/// The size of texts on desktops with a settings daemon: Xfce's own, and others as far as a program sees
/// them.
class TestDesktopScaling : public QObject
{
    Q_OBJECT

public:
    explicit TestDesktopScaling(XServer& server) : m_folder(QString::fromStdString(server.folder())) {}

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void xfceFollows();
    void xfcesOwnChangeIsFollowed();
    void hiDpiLeavesTheDesktopsSetting();
    void desktopsKeyIsSet_data();
    void desktopsKeyIsSet();
    void lastOfManyCounts();
    void unknownDaemonIsLeftAlone();
    void failureIsTold();
    void integers_data();
    void integers();

private:
    bool startXfce();
    bool startManager(const QString& name, int scale);
    std::optional<int> told(const QByteArray& name) const;
    static QString xfceDpi()
    {
        return outputOf(u"xfconf-query -c xsettings -p /Xft/DPI 2>/dev/null"_s).trimmed();
    }
    static double key(const QString& schemaAndKey)
    {
        return outputOf(u"gsettings get "_s + schemaAndKey).trimmed().toDouble();
    }

    const QString m_folder;
    services::ServiceSet m_set;
    std::shared_ptr<Connection> m_connection;
    std::unique_ptr<Beside> m_daemon;
    const QSharedPointer<MonitorInfo> m_monitor = monitorOn(u"DUMMY0"_s);
};

// What the daemon tells programs now; nothing without one.
std::optional<int> TestDesktopScaling::told(const QByteArray& name) const
{
    using namespace services::x11;
    const Owned<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        *m_connection, xcb_get_selection_owner(*m_connection, m_connection->atom(XsettingsSelection)),
        nullptr));
    if (!owner || owner->owner == XCB_WINDOW_NONE)
        return std::nullopt;
    return xsettingsInteger(m_connection->bytes(owner->owner, m_connection->atom(XsettingsSettings)), name);
}

bool TestDesktopScaling::startXfce()
{
    m_daemon = std::make_unique<Beside>();
    return m_daemon->start(u"xfsettingsd"_s, {u"--no-daemon"_s}) &&
           QTest::qWaitFor([this] { return told("Gdk/WindowScalingFactor").has_value(); }, PatienceMs);
}

bool TestDesktopScaling::startManager(const QString& name, int scale)
{
    const QString program = m_folder + u'/' + name;
    if (!QFile::exists(program) && !QFile::copy(QStringLiteral(DESKTOP_MANAGER), program))
        return false;
    m_daemon = std::make_unique<Beside>();
    return m_daemon->start(program, {QString::number(scale)}) &&
           m_daemon->process().waitForReadyRead(PatienceMs) && m_daemon->process().readLine() == "ready\n";
}

void TestDesktopScaling::initTestCase()
{
    QFile schemas(m_folder + u"/desktops.gschema.xml"_s);
    QVERIFY(schemas.open(QIODevice::WriteOnly));
    schemas.write(Schemas);
    schemas.close();
    QCOMPARE(std::system(qPrintable(u"glib-compile-schemas "_s + m_folder)), 0);
    m_connection = Connection::open();
    QVERIFY(m_connection);
    QVERIFY(services::x11::addServices(&m_set));
    services::Registry::install(m_set);
    m_set.events->start();
}

void TestDesktopScaling::init()
{
    m_daemon.reset();
    QTRY_VERIFY(!told("Gdk/WindowScalingFactor"));
    LuPlatform::setMonitorDpiScaling(m_monitor, 100);
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_monitor), 100);
}

void TestDesktopScaling::cleanupTestCase()
{
    m_daemon.reset();
    services::Registry::install({});
    m_set = {};
}

void TestDesktopScaling::xfceFollows()
{
    QVERIFY(startXfce());
    LuPlatform::setMonitorDpiScaling(m_monitor, 150);
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_monitor), 150);
    // Kept by the desktop, and told to the programs that run.
    QTRY_COMPARE(xfceDpi(), u"144"_s);
    QTRY_COMPARE(told("Xft/DPI"), std::optional<int>(144 * 1024));
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_monitor), 150);
    LuPlatform::setMonitorDpiScaling(m_monitor, 125);
    QTRY_COMPARE(told("Xft/DPI"), std::optional<int>(120 * 1024));
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_monitor), 125);
}

void TestDesktopScaling::xfcesOwnChangeIsFollowed()
{
    QVERIFY(startXfce());
    QSignalSpy changes(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged);
    QCOMPARE(std::system("xfconf-query -c xsettings -p /Xft/DPI -n -t int -s 192"), 0);
    QTRY_COMPARE(LuPlatform::getMonitorDpiScaling(m_monitor), 200);
    QTRY_VERIFY(!changes.isEmpty());
}

// It would outlast the session, and HiDPI does not.
void TestDesktopScaling::hiDpiLeavesTheDesktopsSetting()
{
    const QString gnome = u"org.gnome.desktop.interface text-scaling-factor"_s;
    QVERIFY(startManager(u"gsd-xsettings"_s, 1));
    LuPlatform::setMonitorDpiScaling(m_monitor, 125);
    QTRY_COMPARE(key(gnome), 1.25);
    for (const QString& screen : {u"DUMMY0"_s, u"DUMMY1"_s, u"DUMMY2"_s})
        QVERIFY(LuPlatform::setMonitorHiDPI(monitorOn(screen), true));
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_monitor), 250);
    for (const QString& screen : {u"DUMMY0"_s, u"DUMMY1"_s, u"DUMMY2"_s})
        QVERIFY(LuPlatform::setMonitorHiDPI(monitorOn(screen), false));
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_monitor), 125);
    // Told to nobody meanwhile: the next value is the first.
    LuPlatform::setMonitorDpiScaling(m_monitor, 175);
    QTRY_VERIFY(key(gnome) != 1.25);
    QCOMPARE(key(gnome), 1.75);
}

void TestDesktopScaling::desktopsKeyIsSet_data()
{
    const QString gnome = u"org.gnome.desktop.interface text-scaling-factor"_s;
    const QString cinnamon = u"org.cinnamon.desktop.interface text-scaling-factor"_s;
    const QString mate = u"org.mate.font-rendering dpi"_s;
    QTest::addColumn<QString>("process");
    QTest::addColumn<int>("windows");
    QTest::addColumn<int>("percent");
    QTest::addColumn<QString>("key");
    QTest::addColumn<double>("value");
    QTest::newRow("GNOME") << u"gsd-xsettings"_s << 1 << 150 << gnome << 1.5;
    QTest::newRow("GNOME, windows twice as large") << u"gsd-xsettings"_s << 2 << 250 << gnome << 1.25;
    QTest::newRow("GNOME, more than it has") << u"gsd-xsettings"_s << 1 << 350 << gnome << 3.0;
    QTest::newRow("Cinnamon") << u"csd-xsettings"_s << 1 << 175 << cinnamon << 1.75;
    QTest::newRow("MATE") << u"mate-settings-daemon"_s << 1 << 125 << mate << 120.0;
    QTest::newRow("MATE, windows twice as large") << u"mate-settings-daemon"_s << 2 << 300 << mate << 144.0;
}

void TestDesktopScaling::desktopsKeyIsSet()
{
    QFETCH(QString, process);
    QFETCH(int, windows);
    QFETCH(int, percent);
    QFETCH(QString, key);
    QFETCH(double, value);
    QVERIFY(startManager(process, windows));
    QVERIFY(TestDesktopScaling::key(key) != value);
    LuPlatform::setMonitorDpiScaling(m_monitor, percent);
    QTRY_COMPARE(TestDesktopScaling::key(key), value);
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_monitor), percent);
}

void TestDesktopScaling::lastOfManyCounts()
{
    QVERIFY(startManager(u"gsd-xsettings"_s, 1));
    for (const int percent : {125, 150, 175, 200, 225})
        LuPlatform::setMonitorDpiScaling(m_monitor, percent);
    QTRY_COMPARE(key(u"org.gnome.desktop.interface text-scaling-factor"_s), 2.25);
}

void TestDesktopScaling::unknownDaemonIsLeftAlone()
{
    const QString gnome = u"org.gnome.desktop.interface text-scaling-factor"_s;
    const double before = key(gnome);
    const QString xfce = xfceDpi();
    QVERIFY(startManager(u"some-daemon"_s, 1));
    LuPlatform::setMonitorDpiScaling(m_monitor, 200);
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_monitor), 200);
    // What one would have been told comes before what this one is.
    QVERIFY(startManager(u"csd-xsettings"_s, 1));
    LuPlatform::setMonitorDpiScaling(m_monitor, 150);
    QTRY_COMPARE(key(u"org.cinnamon.desktop.interface text-scaling-factor"_s), 1.5);
    QCOMPARE(key(gnome), before);
    QCOMPARE(xfceDpi(), xfce);
}

void TestDesktopScaling::failureIsTold()
{
    QVERIFY(startManager(u"gsd-xsettings"_s, 1));
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", m_folder.toUtf8());
    const LogCount failures(u"[X11] the desktop's size of texts could not be set: "_s);
    LuPlatform::setMonitorDpiScaling(m_monitor, 125);
    QTRY_COMPARE(failures.count(), 1);
    qputenv("PATH", path);
    // The resources have it nevertheless, and the next attempt is made.
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_monitor), 125);
    LuPlatform::setMonitorDpiScaling(m_monitor, 175);
    QTRY_COMPARE(key(u"org.gnome.desktop.interface text-scaling-factor"_s), 1.75);
}

// A text, a colour and an integer.
void TestDesktopScaling::integers_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<std::optional<std::int32_t>>("value");
    for (const bool isBig : {false, true}) {
        const auto head = [isBig](char type, const QByteArray& name) {
            const QByteArray filled = name + QByteArray((4 - name.size() % 4) % 4, '\0');
            return QByteArray(1, type) + '\0' + bytesOf(quint16(name.size()), isBig) + filled +
                   bytesOf(quint32(7), isBig);
        };
        const auto start = [isBig](quint32 count) {
            return QByteArray(1, char(isBig)) + QByteArray(3, '\0') + bytesOf(quint32(9), isBig) +
                   bytesOf(count, isBig);
        };
        const QByteArray text =
            head(1, "Net/ThemeName") + bytesOf(quint32(5), isBig) + QByteArray("Adwai\0\0\0", 8);
        const QByteArray colour = head(2, "Tint") + QByteArray(8, 'c');
        const QByteArray number = head(0, "Xft/DPI") + bytesOf(qint32(-3), isBig);
        const QByteArray order = isBig ? "highest byte first" : "lowest byte first";
        const std::optional<std::int32_t> none;
        const QByteArray all = start(3) + text + colour + number;
        QTest::newRow(order.constData()) << all << std::optional<std::int32_t>(-3);
        QTest::newRow((order + ", not there").constData()) << start(2) + text + colour << none;
        QTest::newRow((order + ", cut off").constData()) << all.chopped(1) << none;
        QTest::newRow((order + ", cut off in a text").constData()) << (start(3) + text).chopped(6) << none;
        QTest::newRow((order + ", of another kind").constData()) << start(1) + head(3, "Xft/DPI") << none;
        QTest::newRow((order + ", more than there are").constData()) << start(0xffffffff) + text << none;
    }
    QTest::newRow("nothing") << QByteArray() << std::optional<std::int32_t>();
}

void TestDesktopScaling::integers()
{
    QFETCH(QByteArray, settings);
    QFETCH(std::optional<std::int32_t>, value);
    QCOMPARE(services::x11::xsettingsInteger(settings, "Xft/DPI"), value);
}

int main(int argc, char** argv)
{
    XServer server;
    if (!server.start()) {
        std::fprintf(stderr, "FAIL! %s\n", server.error().c_str());
        return 1;
    }
    // A person of its own, with settings of its own.
    const QByteArray folder = QByteArray::fromStdString(server.folder());
    for (const char* each :
         {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR", "GSETTINGS_SCHEMA_DIR"})
        qputenv(each, folder);
    qputenv("GSETTINGS_BACKEND", "keyfile");
    SessionBus bus;
    if (!bus.start(server.folder())) {
        std::fprintf(stderr, "FAIL! dbus-daemon does not start\n");
        return 1;
    }
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    QGuiApplication application(argc, argv);
    TestDesktopScaling test(server);
    return QTest::qExec(&test, argc, argv);
}
#include "tst_desktop_scaling.moc"
