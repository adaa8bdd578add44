// SPDX-License-Identifier: Apache-2.0
// GLib names a member as Qt does a keyword, which these files do without.
#include <QObject>
#undef signals
#include <umockdev.h>

#include <LuShared/LuPlatform.h>
#include <LuShared/LuPlatformNotifications.h>
#include <PanelCore/MonitorInfo.h>

#include "MockService.h"
#include "PrivateBus.h"
#include "ddc/Bus.h"
#include "lushared/services/ServiceRegistry.h"
#include "panelcore/MonitorLink.h"
#include "services/linux/Backlight.h"
#include "services/linux/SysfsBacklight.h"

#include <QDBusArgument>
#include <QDBusInterface>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString LogindName = u"org.freedesktop.login1"_s;
const QString SessionPath = u"/org/freedesktop/login1/session/auto"_s;

struct Unref
{
    void operator()(UMockdevTestbed* bed) const { g_object_unref(bed); }
};

} // namespace

/// The computer's folders are umockdev's; logind is python-dbusmock's.
class tst_backlight : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void brightnessIsTheDriversShare_data();
    void brightnessIsTheDriversShare();
    void kernelsPreferenceDecides();
    void connectorsOwnDriverComesFirst();
    void computerWithoutABacklightHasNone();
    void brokenDriverIsPassedOver();
    void brightnessIsSetThroughLogind_data();
    void brightnessIsSetThroughLogind();
    void sliderEndsOnItsLastValue();
    void withoutLogindTheFileIsWritten();
    void refusedBrightnessIsTold();
    void changesAreTold();
    void eventsWithoutAChangeAreNot();

private:
    QString add(const char* path, const char* name, const char* type, int maximum, int value)
    {
        const QByteArray most = QByteArray::number(maximum);
        const QByteArray now = QByteArray::number(value);
        const char* attributes[] = {"type",
                                    type,
                                    "max_brightness",
                                    most.constData(),
                                    "brightness",
                                    now.constData(),
                                    "actual_brightness",
                                    now.constData(),
                                    nullptr};
        const char* properties[] = {nullptr};
        // Without a parent, with the whole path: umockdev wants it so under its preload.
        gchar* const made = umockdev_testbed_add_devicev(
            m_bed.get(), "backlight", QByteArray(QByteArray(path) + '/' + name).constData(), nullptr,
            const_cast<gchar**>(attributes), const_cast<gchar**>(properties));
        QString result = QString::fromLocal8Bit(made);
        g_free(made);
        return result;
    }
    /// As the kernel does it: the value, then the event.
    void kernelSets(const QString& device, int value)
    {
        for (const char* const name : {"brightness", "actual_brightness"})
            umockdev_testbed_set_attribute(m_bed.get(), device.toLocal8Bit().constData(), name,
                                           QByteArray::number(value).constData());
        umockdev_testbed_uevent(m_bed.get(), device.toLocal8Bit().constData(), "change");
    }
    /// The steps that logind was asked for.
    QList<uint> asked();
    /// What went wrong; empty on success.
    QString startLogind(bool refuse = false)
    {
        return m_logind->start(QStringLiteral(MOCKS) + u"/seat.py"_s, LogindName, {{u"refuse"_s, refuse}});
    }

    std::unique_ptr<UMockdevTestbed, Unref> m_bed;
    PrivateBus m_bus;
    std::unique_ptr<MockService> m_logind;
    QSharedPointer<MonitorInfo> m_panel;
};

constexpr char PanelPath[] = "/sys/devices/pci0000:00/0000:00:02.0/drm/card0/card0-eDP-1";

QList<uint> tst_backlight::asked()
{
    QDBusInterface mock(LogindName, SessionPath, u"org.freedesktop.DBus.Mock"_s,
                        QDBusConnection::systemBus());
    const QDBusMessage reply = mock.call(u"GetMethodCalls"_s, u"SetBrightness"_s);
    QList<uint> steps;
    const auto calls = reply.arguments().value(0).value<QDBusArgument>();
    calls.beginArray();
    while (!calls.atEnd()) {
        quint64 time = 0;
        QVariantList arguments;
        calls.beginStructure();
        calls >> time >> arguments;
        calls.endStructure();
        if (arguments.size() == 3 && arguments[0] == u"backlight"_s && arguments[1] == u"intel_backlight"_s)
            steps.append(arguments[2].toUInt());
    }
    calls.endArray();
    return steps;
}

void tst_backlight::initTestCase()
{
    const QString problem = m_bus.start();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_bus.address().toUtf8());
    QVERIFY(QDBusConnection::systemBus().isConnected());
}

void tst_backlight::init()
{
    m_bed.reset(umockdev_testbed_new());
    QVERIFY2(umockdev_in_mock_environment(), "the test needs umockdev's preload");
    m_logind = std::make_unique<MockService>();
    MonitorDescription description;
    description.modelName = u"Panel"_s;
    description.nativeHandle = u"eDP-1"_s;
    description.builtIn = true;
    m_panel = MonitorLink::create(description, nullptr, MonitorLink::Waits::None);
    services::ServiceSet set;
    set.backlight = services::makeLinuxBacklight();
    services::Registry::install(set);
}

void tst_backlight::cleanup()
{
    services::Registry::install({});
    m_logind.reset();
    QTRY_VERIFY(!QDBusConnection::systemBus().interface()->isServiceRegistered(LogindName));
    m_bed.reset();
}

void tst_backlight::brightnessIsTheDriversShare_data()
{
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<double>("share");
    QTest::newRow("some") << 1000 << 400 << 0.4;
    QTest::newRow("full") << 7 << 7 << 1.0;
    QTest::newRow("off") << 255 << 0 << 0.0;
    QTest::newRow("over full") << 100 << 120 << 1.0;
}

void tst_backlight::brightnessIsTheDriversShare()
{
    QFETCH(int, maximum);
    QFETCH(int, value);
    add(PanelPath, "intel_backlight", "raw", maximum, value);
    QTEST(LuPlatform::getMonitorBrightness(m_panel), "share");
}

void tst_backlight::kernelsPreferenceDecides()
{
    add("/sys/devices/a", "nvidia_0", "raw", 100, 10);
    add("/sys/devices/b", "acpi_video0", "firmware", 100, 20);
    add("/sys/devices/c", "thinkpad_screen", "platform", 100, 30);
    const auto device = services::findBacklight({});
    QVERIFY(device);
    QCOMPARE(device->name, u"acpi_video0"_s);
    QCOMPARE(device->value(), std::optional(20));
}

void tst_backlight::connectorsOwnDriverComesFirst()
{
    add("/sys/devices/b", "acpi_video0", "firmware", 100, 20);
    add(PanelPath, "intel_backlight", "raw", 100, 30);
    QCOMPARE(services::findBacklight(u"eDP-1"_s)->name, u"intel_backlight"_s);
    QCOMPARE(services::findBacklight(u"eDP-2"_s)->name, u"acpi_video0"_s);
    QCOMPARE(services::findBacklight({})->name, u"acpi_video0"_s);
}

void tst_backlight::computerWithoutABacklightHasNone()
{
    QCOMPARE(LuPlatform::getMonitorBrightness(m_panel), 0.0);
    LuPlatform::setMonitorBrightness(m_panel, 0.5);
}

void tst_backlight::brokenDriverIsPassedOver()
{
    add("/sys/devices/a", "broken", "firmware", 0, 0);
    add("/sys/devices/b", "good", "raw", 10, 5);
    QCOMPARE(services::findBacklight({})->name, u"good"_s);
}

void tst_backlight::brightnessIsSetThroughLogind_data()
{
    QTest::addColumn<double>("share");
    QTest::addColumn<uint>("step");
    QTest::newRow("half") << 0.5 << 500U;
    QTest::newRow("full") << 1.0 << 1000U;
    QTest::newRow("rounded") << 0.3336 << 334U;
    QTest::newRow("never off") << 0.0 << 1U;
    QTest::newRow("over full") << 3.0 << 1000U;
}

void tst_backlight::brightnessIsSetThroughLogind()
{
    QFETCH(double, share);
    QFETCH(uint, step);
    add(PanelPath, "intel_backlight", "raw", 1000, 400);
    QCOMPARE(startLogind(), QString());
    LuPlatform::setMonitorBrightness(m_panel, share);
    // What is asked for is answered until it is done.
    QCOMPARE(LuPlatform::getMonitorBrightness(m_panel), step / 1000.0);
    QTRY_COMPARE(asked(), QList<uint>{step});
}

void tst_backlight::sliderEndsOnItsLastValue()
{
    add(PanelPath, "intel_backlight", "raw", 1000, 400);
    QCOMPARE(startLogind(), QString());
    for (int step = 100; step <= 900; ++step)
        LuPlatform::setMonitorBrightness(m_panel, step / 1000.0);
    QTRY_VERIFY(!asked().isEmpty() && asked().last() == 900);
    QVERIFY2(asked().size() < 10, qPrintable(QString::number(asked().size())));
}

void tst_backlight::withoutLogindTheFileIsWritten()
{
    add(PanelPath, "intel_backlight", "raw", 1000, 400);
    LuPlatform::setMonitorBrightness(m_panel, 0.25);
    const auto written = [] {
        QFile file(u"/sys/class/backlight/intel_backlight/brightness"_s);
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
    };
    QTRY_COMPARE(written(), QByteArray("250"));
}

void tst_backlight::refusedBrightnessIsTold()
{
    const QString device = add(PanelPath, "intel_backlight", "raw", 1000, 400);
    QCOMPARE(startLogind(true), QString());
    // The way round logind is closed as well: the file is a folder.
    gchar* const root = umockdev_testbed_get_root_dir(m_bed.get());
    const QString file = QString::fromLocal8Bit(root) + device + u"/brightness"_s;
    g_free(root);
    QVERIFY(QFile::remove(file));
    QVERIFY(QDir().mkdir(file));
    QSignalSpy changed(LuPlatformNotifications::instance(),
                       &LuPlatformNotifications::systemBrightnessChanged);
    QTest::ignoreMessage(
        QtWarningMsg, QRegularExpression(u"intel_backlight\" cannot be set|intel_backlight cannot be set"_s));
    LuPlatform::setMonitorBrightness(m_panel, 0.9);
    QTRY_COMPARE(changed.count(), 1);
    QCOMPARE(LuPlatform::getMonitorBrightness(m_panel), 0.4);
}

void tst_backlight::changesAreTold()
{
    const QString device = add(PanelPath, "intel_backlight", "raw", 1000, 400);
    QSignalSpy changed(LuPlatformNotifications::instance(),
                       &LuPlatformNotifications::systemBrightnessChanged);
    LuPlatform::registerBrightnessChangeNotifications(m_panel);
    LuPlatform::registerBrightnessChangeNotifications(m_panel);
    kernelSets(device, 600);
    QTRY_COMPARE(changed.count(), 1);
    QCOMPARE(LuPlatform::getMonitorBrightness(m_panel), 0.6);
    kernelSets(device, 700);
    QTRY_COMPARE(changed.count(), 2);
}

void tst_backlight::eventsWithoutAChangeAreNot()
{
    const QString device = add(PanelPath, "intel_backlight", "raw", 1000, 400);
    QSignalSpy changed(LuPlatformNotifications::instance(),
                       &LuPlatformNotifications::systemBrightnessChanged);
    LuPlatform::registerBrightnessChangeNotifications(m_panel);
    kernelSets(device, 400);
    kernelSets(device, 500);
    QTRY_COMPARE(LuPlatform::getMonitorBrightness(m_panel), 0.5);
    QTRY_COMPARE(changed.count(), 1);
}

QTEST_GUILESS_MAIN(tst_backlight)
#include "tst_backlight.moc"
