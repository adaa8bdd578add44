// SPDX-License-Identifier: Apache-2.0
#include "TestMonitor.h"

#include <LuShared/LuKvm.h>
#include <LuShared/LuMediaDevices.h>
#include <LuShared/LuPlatform.h>
#include <LuShared/LuPlatformNotifications.h>
#include <LuShared/LuPlatformProgram.h>
#include <LuShared/LuServerLocation.h>

#include "lushared/services/Abilities.h"
#include "lushared/services/ServiceRegistry.h"
#include "services/api/AudioService.h"
#include "services/api/ClipboardKeysService.h"
#include "services/api/DesktopEvents.h"
#include "services/api/DisplayService.h"
#include "services/api/ProgramService.h"
#include "services/api/WindowService.h"

#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(services::ServiceSet)

namespace {

// Counts what reaches it, and answers what nobody would take for an absence.
class CountingDisplay : public services::DisplayService
{
public:
    int pivot(const MonitorInfo&) const override { return 90; }
    void setPivot(const MonitorInfo&, int) override { ++sets; }
    QList<int> dpiScalings(const MonitorInfo&) const override { return {100}; }
    int dpiScaling(const MonitorInfo&) const override { return 100; }
    void setDpiScaling(const MonitorInfo&, int) override { ++sets; }
    bool hiDpi(const MonitorInfo&) const override { return true; }
    bool setHiDpi(const MonitorInfo&, bool) override { return true; }
    QList<QSize> resolutions(const MonitorInfo&, int) const override { return {QSize(1, 1)}; }
    QSize resolution(const MonitorInfo&) const override { return {1, 1}; }
    bool setResolution(const MonitorInfo&, const QSize&, int, bool, int) override { return ++sets > 0; }
    QRect nativeScreenRect(const QString&) const override { return {0, 0, 1, 1}; }

    bool isAvailable() const override { return available; }

    int sets = 0;
    bool available = true;
};

class SessionWindows : public services::WindowService
{
public:
    void setLayer(QQuickWindow*, int) override {}
    void setJoinActiveSpaces(QQuickWindow*, bool) override {}
    bool blends() const override { return blending; }
    bool keepsAbove() const override { return keeping; }

    bool blending = true;
    bool keeping = true;
};

class SessionKeys : public services::ClipboardKeysService
{
public:
    void copy() override {}
    void paste() override {}
};

class SessionEvents : public services::DesktopEvents
{
public:
    void setKeyHandler(KeyHandler) override {}
    bool seesWindows() const override { return windows; }
    void start() override {}
    void stop() override {}

    bool windows = true;
};

class SessionAudio : public services::AudioService
{
public:
    QList<QAudioDevice> outputs() const override { return {}; }
    QAudioDevice defaultOutput() const override { return {}; }
    void setDefaultOutput(const QAudioDevice&) override {}
    QString displayName(const QAudioDevice&) const override { return {}; }
    int volume() const override { return 0; }
    void setVolume(int) override {}
    void openSettings() override {}
};

class LoadingPrograms : public services::ProgramService
{
public:
    bool placesWindows() const override { return placing; }
    bool isListReady() const override { return false; }
    QString appId(unsigned long) const override { return {}; }
    QString appId(const QUrl&) const override { return {}; }
    QString displayName(const QString&) const override { return {}; }
    QUrl url(const QString&) const override { return {}; }
    bool open(const QString&) override { return true; }
    void setGeometry(unsigned long, const QRectF&) override { ++geometries; }

    int geometries = 0;
    bool placing = true;
};

} // namespace

class TestAbsentServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { services::Registry::install({}); }

    void anAbsentDisplayServiceReportsNothing()
    {
        const auto monitor = testMonitor(QStringLiteral("TK30Z@A1"), true);
        LuPlatform::setMonitorPivot(monitor, 90);
        LuPlatform::setMonitorDpiScaling(monitor, 150);
        LuPlatform::setMonitorBrightness(monitor, 0.5);
        LuPlatform::registerBrightnessChangeNotifications(monitor);
        QCOMPARE(LuPlatform::getMonitorPivot(monitor), 0);
        QCOMPARE(LuPlatform::getMonitorBrightness(monitor), 0.0);
        QCOMPARE(LuPlatform::availableMonitorDpiScalings(monitor), QList<int>());
        QCOMPARE(LuPlatform::getMonitorDpiScaling(monitor), 0);
        QVERIFY(!LuPlatform::getMonitorHiDPI(monitor));
        QVERIFY(!LuPlatform::setMonitorHiDPI(monitor, true));
        QCOMPARE(LuPlatform::availableMonitorResolutions(monitor, 60), QList<QSize>());
        QVERIFY(!LuPlatform::getMonitorResolution(monitor).isValid());
        QVERIFY(
            !LuPlatform::setResolution(monitor, QSize(1920, 1080), 60, true, LuPlatform::PreferSameHidpi));
        QVERIFY(LuPlatform::getNativeScreenRect(monitor->nativeHandle()).isNull());
    }

    void absentWindowAndKeyServicesDoNothing()
    {
        QQuickWindow window;
        const Qt::WindowFlags flags = window.flags();
        LuPlatform::setWindowLayer(&window, 3);
        LuPlatform::setWindowJoinActiveSpaces(&window, true);
        LuPlatform::simulateCopy();
        LuPlatform::simulatePaste();
        QCOMPARE(window.flags(), flags);
        QVERIFY(window.dynamicPropertyNames().isEmpty());
    }

    void anAbsentProgramServiceReportsNothing()
    {
        LuPlatformProgram* const program = LuPlatformProgram::instance();
        QCOMPARE(program->appId(1UL), QString());
        QCOMPARE(program->appId(QUrl(QStringLiteral("file:///bin/sh"))), QString());
        QCOMPARE(program->appDisplayName(QStringLiteral("sh")), QString());
        QCOMPARE(program->appUrl(QStringLiteral("sh")), QUrl());
        QVERIFY(!program->openApplication(QStringLiteral("/bin/true")));
        program->setApplicationGeometry(1, QRectF(0, 0, 10, 10));
    }

    // Whoever waits for the list would wait for ever.
    void theListOfApplicationsIsReadyWhereNobodyMakesOne()
    {
        QVERIFY(LuPlatformProgram::instance()->appListReady);
        services::ServiceSet set;
        set.programs = std::make_shared<LoadingPrograms>();
        services::Registry::install(set);
        QVERIFY(!LuPlatformProgram::instance()->appListReady);
        services::Registry::install({});
        QVERIFY(LuPlatformProgram::instance()->appListReady);
    }

    void anAbsentAudioServiceHasNoVolume()
    {
        LuMediaDevices* const media = LuMediaDevices::instance();
        media->setSystemVolume(70);
        media->setDefaultAudioOutputDevice(QAudioDevice());
        media->openSystemSettings();
        QCOMPARE(media->systemVolume(), 0);
        QCOMPARE(media->deviceDisplayName(QAudioDevice()), QString());
        QCOMPARE(LuMediaDevices::audioOutputs(), QMediaDevices::audioOutputs());
    }

    void anAbsentLocationIsUnknown()
    {
        QCOMPARE(LuServerLocation::instance()->status(), int(LuServerLocation::Unknown));
        QCOMPARE(LuServerLocation::instance()->latitude(), 0.0);
        QCOMPARE(LuServerLocation::instance()->longitude(), 0.0);
    }

    void anAbsentKvmDriverReportsNothing()
    {
        LuKvm* const kvm = LuKvm::instance();
        QSignalSpy changed(kvm, &LuKvm::kvmChanged);
        kvm->setKvmType(LuKvm::SmartKvmBasic);
        kvm->installDriver();
        kvm->activate();
        kvm->setScreenRect(QRect(0, 0, 10, 10));
        kvm->setKvmDeviceLocation(LuKvm::RightLocation);
        kvm->deactivate();
        QVERIFY(!kvm->isConnected());
        QVERIFY(!kvm->isDriverInstalled());
        QCOMPARE(kvm->getKvmDeviceLocation(), LuKvm::LeftLocation);
        QCOMPARE(changed.count(), 0);
    }

    void aNullMonitorIsAnsweredAsAnAbsentService()
    {
        const auto display = std::make_shared<CountingDisplay>();
        services::ServiceSet set;
        set.display = display;
        services::Registry::install(set);
        const QSharedPointer<MonitorInfo> none;
        LuPlatform::setMonitorPivot(none, 90);
        LuPlatform::setMonitorDpiScaling(none, 150);
        QCOMPARE(LuPlatform::getMonitorPivot(none), 0);
        QVERIFY(!LuPlatform::getMonitorHiDPI(none));
        QVERIFY(!LuPlatform::setMonitorHiDPI(none, true));
        QVERIFY(!LuPlatform::setResolution(none, QSize(1, 1), 60, true, LuPlatform::PreferSameHidpi));
        QVERIFY(!LuPlatform::getMonitorResolution(none).isValid());
        LuPlatform::setWindowLayer(nullptr, 3);
        QCOMPARE(display->sets, 0);
    }

    void onlyRightAnglesReachTheService_data()
    {
        QTest::addColumn<int>("degrees");
        QTest::addColumn<int>("sets");
        QTest::newRow("none") << 0 << 1;
        QTest::newRow("quarter") << 90 << 1;
        QTest::newRow("half") << 180 << 1;
        QTest::newRow("three quarters") << 270 << 1;
        QTest::newRow("whole turn") << 360 << 0;
        QTest::newRow("backwards") << -90 << 0;
        QTest::newRow("slant") << 45 << 0;
    }

    void onlyRightAnglesReachTheService()
    {
        QFETCH(int, degrees);
        QFETCH(int, sets);
        const auto display = std::make_shared<CountingDisplay>();
        services::ServiceSet set;
        set.display = display;
        services::Registry::install(set);
        LuPlatform::setMonitorPivot(testMonitor(QStringLiteral("TK30Z@A1")), degrees);
        QCOMPARE(display->sets, sets);
    }

    void senselessArgumentsStopAtTheFront()
    {
        const auto display = std::make_shared<CountingDisplay>();
        const auto programs = std::make_shared<LoadingPrograms>();
        services::ServiceSet set;
        set.display = display;
        set.programs = programs;
        services::Registry::install(set);
        const auto monitor = testMonitor(QStringLiteral("TK30Z@A1"));
        QVERIFY(!LuPlatform::setResolution(monitor, QSize(-1, -1), 60, true, LuPlatform::PreferSameHidpi));
        QVERIFY(!LuPlatform::setResolution(monitor, QSize(0, 0), 60, true, LuPlatform::PreferSameHidpi));
        QCOMPARE(display->sets, 0);
        QVERIFY(!LuPlatformProgram::instance()->openApplication(QString()));
        LuPlatformProgram::instance()->setApplicationGeometry(1, QRectF());
        QCOMPARE(programs->geometries, 0);
    }

    void theModeThatFeaturesPassKeepsItsNumber() { QCOMPARE(int(LuPlatform::PreferSameHidpi), 1); }

    void kvmEnumeratorsKeepTheirNumbers()
    {
        QCOMPARE(int(LuKvm::LeftLocation), 0);
        QCOMPARE(int(LuKvm::RightLocation), 1);
        QCOMPARE(int(LuKvm::SmartKvmBasic), 2);
    }

    void whatTheServicesLackHasAName_data();
    void whatTheServicesLackHasAName();

    void theSessionHasAName() { QCOMPARE(services::Registry::sessionName(), QStringLiteral("offscreen")); }
};

void TestAbsentServices::whatTheServicesLackHasAName_data()
{
    using Names = QStringList;
    const Names displays = {u"displayModes"_s, u"rotation"_s, u"scaling"_s};
    const Names audio = {u"soundOutputs"_s};
    const Names rest = {u"globalShortcuts"_s, u"foregroundApplication"_s, u"windowPlacing"_s,
                        u"copyPasteKeys"_s, u"pointerEdge"_s};
    QTest::addColumn<services::ServiceSet>("set");
    QTest::addColumn<Names>("absent");
    services::ServiceSet set;
    QTest::newRow("nothing") << set << displays + rest + audio + Names{u"overlayOnTop"_s};

    const auto display = std::make_shared<CountingDisplay>();
    set.display = display;
    QTest::newRow("displays") << set << rest + audio + Names{u"overlayOnTop"_s};
    const auto without = std::make_shared<CountingDisplay>();
    without->available = false;
    set.display = without;
    QTest::newRow("displays that cannot be changed")
        << set << displays + rest + audio + Names{u"overlayOnTop"_s};
    set.display = display;

    const auto windows = std::make_shared<SessionWindows>();
    set.windows = windows;
    QTest::newRow("windows") << set << rest + audio;
    const auto plain = std::make_shared<SessionWindows>();
    plain->blending = false;
    set.windows = plain;
    QTest::newRow("windows that do not blend") << set << rest + audio + Names{u"translucentWindows"_s};
    const auto below = std::make_shared<SessionWindows>();
    below->keeping = false;
    set.windows = below;
    QTest::newRow("windows that cannot be kept above") << set << rest + audio + Names{u"overlayOnTop"_s};
    set.windows = windows;

    const auto programs = std::make_shared<LoadingPrograms>();
    set.programs = programs;
    Names left = {u"globalShortcuts"_s, u"foregroundApplication"_s, u"copyPasteKeys"_s, u"pointerEdge"_s};
    QTest::newRow("programs that can be placed") << set << left + audio;
    const auto kept = std::make_shared<LoadingPrograms>();
    kept->placing = false;
    set.programs = kept;
    QTest::newRow("programs that cannot") << set << rest + audio;
    set.programs = programs;

    set.clipboardKeys = std::make_shared<SessionKeys>();
    left.removeOne(u"copyPasteKeys"_s);
    QTest::newRow("keys of copy and paste") << set << left + audio;

    const auto keysOnly = std::make_shared<SessionEvents>();
    keysOnly->windows = false;
    set.events = keysOnly;
    left.removeOne(u"globalShortcuts"_s);
    QTest::newRow("keys without windows") << set << left + audio;
    set.events = std::make_shared<SessionEvents>();
    left.removeOne(u"foregroundApplication"_s);
    QTest::newRow("keys and windows") << set << left + audio;

    set.audio = std::make_shared<SessionAudio>();
    QTest::newRow("no output") << set << left + audio;
}

void TestAbsentServices::whatTheServicesLackHasAName()
{
    QFETCH(services::ServiceSet, set);
    services::Registry::install(set);
    QTEST(services::absentAbilities(), "absent");
}

QTEST_MAIN(TestAbsentServices)
#include "tst_absentservices.moc"
