// SPDX-License-Identifier: Apache-2.0
#include "TestMonitor.h"

#include <LuShared/LuKvm.h>
#include <LuShared/LuMediaDevices.h>
#include <LuShared/LuPlatform.h>
#include <LuShared/LuPlatformNotifications.h>
#include <LuShared/LuPlatformProgram.h>
#include <LuShared/LuServerLocation.h>
#include <ZrCore/ZrPlatform.h>

#include "services/simulated/SimulatedServices.h"
#include "services/simulated/World.h"

#include <QBuffer>
#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMimeData>
#include <QQuickWindow>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <thread>

using services::Error;

namespace {

// Slashes are escaped in the texts, since moc takes two of them for a comment even in a raw string.
QJsonValue json(const char* text)
{
    return QJsonDocument::fromJson(QByteArray("[") + text + "]").array().first();
}

QByteArray text(const QJsonValue& value)
{
    return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
}

// Counts every signal that the session can raise, by its name.
class Counter : public QObject
{
public:
    Counter()
    {
        count(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged,
              "screenGeometryChanged");
        count(LuPlatformNotifications::instance(), &LuPlatformNotifications::systemBrightnessChanged,
              "systemBrightnessChanged");
        count(LuPlatformNotifications::instance(), &LuPlatformNotifications::appListInitialized,
              "appListInitialized");
        count(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeAppChanged,
              "activeAppChanged");
        count(LuMediaDevices::instance(), &QMediaDevices::audioOutputsChanged, "audioOutputsChanged");
        count(LuMediaDevices::instance(), &LuMediaDevices::systemVolumeChanged, "systemVolumeChanged");
        count(LuServerLocation::instance(), &LuServerLocation::locationStatusChanged,
              "locationStatusChanged");
        count(LuKvm::instance(), &LuKvm::kvmChanged, "kvmChanged");
        count(LuKvm::instance(), &LuKvm::deviceLocationChanged, "deviceLocationChanged");
    }

    QStringList raised;

private:
    template <typename Sender, typename SignalFunction>
    void count(Sender* sender, SignalFunction signal, const char* name)
    {
        connect(sender, signal, this, [this, name] { raised.append(QLatin1String(name)); });
    }
};

} // namespace

class TestSimulatedServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_session.reset(new services::SimulatedServices);
        m_session->install();
        m_monitor = testMonitor(QStringLiteral("TK30Z@A1"));
        m_other = testMonitor(QStringLiteral("TK20@B2"));
        m_panel = testMonitor(QStringLiteral("Panel@C3"), true);
    }

    void cleanup()
    {
        m_session.reset();
        QGuiApplication::clipboard()->clear();
    }

    void aPathHoldsWhatWasSetAndRaisesItsSignalOnce_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QString>("raised");

        const auto row = [](const char* path, const char* value, const char* raised) {
            QTest::newRow(path) << QByteArray(value) << QString::fromLatin1(raised);
        };
        row("pivot", "90", "screenGeometryChanged");
        row("resolution", R"({"width":1920,"height":1080})", "screenGeometryChanged");
        row("resolutions", R"([{"width":1920,"height":1080}])", "screenGeometryChanged");
        row("dpiScaling", "125", "screenGeometryChanged");
        row("dpiScalings", "[100,300]", "screenGeometryChanged");
        row("hiDpi", "true", "screenGeometryChanged");
        row("hiDpiRefused", "true", "");
        row("TK30Z@A1/pivot", "270", "screenGeometryChanged");
        row("TK30Z/resolution", R"({"width":800,"height":600})", "screenGeometryChanged");
        row("TK30Z@A1/resolutions", "[]", "screenGeometryChanged");
        row("TK30Z@A1/dpiScaling", "150", "screenGeometryChanged");
        row("TK30Z@A1/dpiScalings", "[]", "screenGeometryChanged");
        row("TK30Z@A1/hiDpi", "true", "screenGeometryChanged");
        row("TK30Z@A1/hiDpiRefused", "true", "");
        row("systemBrightness", "0.25", "systemBrightnessChanged");
        row("openRefused", R"(["/bin/no"])", "");
        row("applicationsReady", "true", "appListInitialized");
        row("applications", R"([{"pid":7,"id":"ed","name":"Editor","url":"file:\/\/\/bin/ed"}])", "");
        row("windows", R"({"7":{"x":1,"y":2,"width":3.5,"height":4}})", "");
        row("activePid", "77", "activeAppChanged");
        row("audioOutputs", R"([{"id":"hdmi","name":"TK30Z"}])", "audioOutputsChanged");
        row("defaultAudioOutput", R"("BuiltInSpeakerDevice")", "audioOutputsChanged");
        row("systemVolume", "30", "systemVolumeChanged");
        row("location", R"({"latitude":52.5,"longitude":-13.4,"status":1})", "locationStatusChanged");
        row("selection", R"({"text":"a"})", "");
        row("pasted", R"([{"text":"a"},{}])", "");
        row("clipboard", R"({"text":"a","html":"<b>a</b>","urls":["file:\/\/\/a"]})", "");
        row("kvm",
            R"({"active":true,"type":2,"rect":{"x":1,"y":2,"width":3,"height":4},"location":1,"connected":true,
                "driverInstalled":true,"calls":["activate"]})",
            "deviceLocationChanged kvmChanged");
        row("screens",
            R"([{"name":"A","rect":{"x":0,"y":0,"width":800,"height":600},"monitor":"TK30Z@A1",
                "available":{"x":0,"y":20,"width":800,"height":580}}])",
            "screenGeometryChanged");
        row("deviceModel", R"("Book 1,1")", "");
        row("opened", R"(["/bin/ed"])", "");
    }

    void aPathHoldsWhatWasSetAndRaisesItsSignalOnce()
    {
        QFETCH(QByteArray, value);
        QFETCH(QString, raised);
        const QString path = QString::fromLatin1(QTest::currentDataTag());
        Counter counter;
        Error error;
        QVERIFY2(m_session->set(path, json(value.constData()), &error), qPrintable(error.message));
        QVERIFY(!error);
        QCOMPARE(text(m_session->get(path, &error)), text(json(value.constData())));
        QVERIFY(!error);
        QCOMPARE(counter.raised.join(u' '), raised);

        // Setting raises it whether the value differs or not.
        counter.raised.clear();
        QVERIFY(m_session->set(path, json(value.constData())));
        QCOMPARE(counter.raised.join(u' '), raised);
    }

    void everyPathIsCovered()
    {
        const QList<QString> paths = services::World::paths();
        QCOMPARE(paths.size(), 24);
        for (const QString& path : paths) {
            Error error;
            QVERIFY2(!m_session->get(path, &error).isUndefined(), qPrintable(path));
            QVERIFY(!error);
        }
    }

    void aValueOfTheWrongTypeChangesNothing_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("value");
        const auto row = [](const char* name, const char* path, const char* value) {
            QTest::newRow(name) << QString::fromLatin1(path) << QByteArray(value);
        };
        row("rotation text", "pivot", R"("90")");
        row("rotation slant", "pivot", "45");
        row("rotation whole turn", "pivot", "360");
        row("rotation fraction", "pivot", "90.5");
        row("rotation null", "pivot", "null");
        row("rotation of a monitor", "TK30Z@A1/pivot", "1");
        row("size list", "resolution", "[1,2]");
        row("size without height", "resolution", R"({"width":1})");
        row("size of nothing", "resolution", R"({"width":0,"height":1})");
        row("size with more", "resolution", R"({"width":1,"height":1,"depth":1})");
        row("sizes no list", "resolutions", R"({"width":1,"height":1})");
        row("sizes one wrong", "resolutions", R"([{"width":1,"height":1},3])");
        row("scaling zero", "dpiScaling", "0");
        row("scaling fraction", "dpiScaling", "112.5");
        row("scalings text", "dpiScalings", R"(["100"])");
        row("hidpi number", "hiDpi", "1");
        row("hidpi refused text", "hiDpiRefused", R"("true")");
        row("brightness above", "systemBrightness", "1.01");
        row("brightness below", "systemBrightness", "-0.1");
        row("brightness text", "systemBrightness", R"("0.5")");
        row("refused number", "openRefused", "[1]");
        row("ready number", "applicationsReady", "1");
        row("application without id", "applications", R"([{"pid":1}])");
        row("application pid text", "applications", R"([{"id":"a","pid":"1"}])");
        row("application unknown member", "applications", R"([{"id":"a","process":1}])");
        row("window of a name", "windows", R"({"ed":{"x":0,"y":0,"width":1,"height":1}})");
        row("window without width", "windows", R"({"1":{"x":0,"y":0,"height":1}})");
        row("window negative", "windows", R"({"1":{"x":0,"y":0,"width":-1,"height":1}})");
        row("pid negative", "activePid", "-1");
        row("pid fraction", "activePid", "1.5");
        row("output without id", "audioOutputs", R"([{"name":"a"}])");
        row("output twice", "audioOutputs", R"([{"id":"a"},{"id":"a"}])");
        row("default number", "defaultAudioOutput", "1");
        row("default unknown", "defaultAudioOutput", R"("nowhere")");
        row("volume above", "systemVolume", "101");
        row("volume below", "systemVolume", "-1");
        row("location text", "location", R"("Berlin")");
        row("location latitude above", "location", R"({"latitude":90.1})");
        row("location status text", "location", R"({"status":"known"})");
        row("location unknown member", "location", R"({"lat":1})");
        row("selection text", "selection", R"("a")");
        row("selection member", "selection", R"({"txt":"a"})");
        row("pasted object", "pasted", "{}");
        row("clipboard no base64", "clipboard", R"({"image":"***"})");
        row("clipboard no picture", "clipboard", R"({"image":"aGVsbG8="})");
        row("clipboard addresses", "clipboard", R"({"urls":"file:\/\/\/a"})");
        row("kvm list", "kvm", "[]");
        row("kvm type", "kvm", R"({"type":9})");
        row("kvm side", "kvm", R"({"location":"Middle"})");
        row("kvm calls", "kvm", R"({"calls":[1]})");
        row("kvm unknown member", "kvm", R"({"on":true})");
        row("screens none", "screens", "[]");
        row("screens twice", "screens",
            R"([{"name":"A","rect":{"x":0,"y":0,"width":8,"height":6}},{"name":"A","rect":{"x":8,"y":0,"width":8,"height":6}}])");
        row("screen empty", "screens", R"([{"name":"A","rect":{"x":0,"y":0,"width":0,"height":0}}])");
        row("screen available outside", "screens",
            R"([{"name":"A","rect":{"x":0,"y":0,"width":8,"height":6},"available":{"x":1,"y":0,"width":8,"height":6}}])");
        row("screen without name", "screens", R"([{"rect":{"x":0,"y":0,"width":8,"height":6}}])");
        row("model number", "deviceModel", "1");
        row("opened text", "opened", R"("a")");
    }

    void aValueOfTheWrongTypeChangesNothing()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, value);
        const QByteArray before = text(m_session->get(path));
        Counter counter;
        Error error;
        QVERIFY(!m_session->set(path, json(value.constData()), &error));
        QCOMPARE(error.code, int(Error::WrongType));
        QVERIFY(!error.message.isEmpty());
        QCOMPARE(text(m_session->get(path)), before);
        QCOMPARE(counter.raised, QStringList());
    }

    void anUnknownPathIsAnError_data()
    {
        QTest::addColumn<QString>("path");
        for (const char* path :
             {"", "Pivot", "volume", "TK30Z@A1/systemVolume", "TK30Z@A1/", "/pivot", "pivot/"})
            QTest::addRow("\"%s\"", path) << QString::fromLatin1(path);
    }

    void anUnknownPathIsAnError()
    {
        QFETCH(QString, path);
        Error error;
        QVERIFY(m_session->get(path, &error).isUndefined());
        QCOMPARE(error.code, int(Error::NoSuchPath));
        error = {};
        QVERIFY(!m_session->set(path, 1, &error));
        QCOMPARE(error.code, int(Error::NoSuchPath));
    }

    void aValueForAllReachesEveryMonitor()
    {
        QVERIFY(m_session->set(QStringLiteral("TK30Z@A1/pivot"), 90));
        QCOMPARE(LuPlatform::getMonitorPivot(m_monitor), 90);
        QCOMPARE(LuPlatform::getMonitorPivot(m_other), 0);
        QVERIFY(m_session->set(QStringLiteral("pivot"), 270));
        QCOMPARE(LuPlatform::getMonitorPivot(m_monitor), 270);
        QCOMPARE(LuPlatform::getMonitorPivot(m_other), 270);
    }

    void aModelsNameMeansItsMonitors()
    {
        QVERIFY(m_session->set(QStringLiteral("TK30Z@A1/dpiScaling"), 125));
        QVERIFY(m_session->set(QStringLiteral("TK30Z/dpiScaling"), 175));
        QCOMPARE(LuPlatform::getMonitorDpiScaling(m_monitor), 175);
        QCOMPARE(LuPlatform::getMonitorDpiScaling(m_other), 100);
    }

    void withoutAMonitorTheCurrentOneIsRead()
    {
        services::SimulatedServices::Monitors monitors;
        QString current = m_other->id();
        monitors.current = [&] { return current; };
        m_session->setMonitors(monitors);
        LuPlatform::setMonitorPivot(m_monitor, 90);
        QCOMPARE(m_session->get(QStringLiteral("pivot")).toInt(), 0);
        current = m_monitor->id();
        QCOMPARE(m_session->get(QStringLiteral("pivot")).toInt(), 90);
    }

    void aMonitorIsResolvedByTheHost()
    {
        services::SimulatedServices::Monitors monitors;
        monitors.resolve = [](const QString& address) -> std::optional<QString> {
            return address == u"TK30Z" ? std::optional(QStringLiteral("TK30Z@A1")) : std::nullopt;
        };
        m_session->setMonitors(monitors);
        QVERIFY(m_session->set(QStringLiteral("TK30Z/pivot"), 180));
        QCOMPARE(LuPlatform::getMonitorPivot(m_monitor), 180);
        QCOMPARE(LuPlatform::getMonitorPivot(testMonitor(QStringLiteral("TK30Z@D4"))), 0);
        Error error;
        QVERIFY(!m_session->set(QStringLiteral("TK99/pivot"), 180, &error));
        QCOMPARE(error.code, int(Error::NoSuchMonitor));
        QVERIFY(m_session->get(QStringLiteral("TK99/pivot"), &error).isUndefined());
        QCOMPARE(error.code, int(Error::NoSuchMonitor));
    }

    void theProgramsChangeRaisesTheSignalOnceAndAfterTheCall_data()
    {
        QTest::addColumn<std::function<void()>>("change");
        QTest::addColumn<QString>("raised");
        const auto row = [](const char* name, std::function<void()> change, const char* raised) {
            QTest::newRow(name) << std::move(change) << QString::fromLatin1(raised);
        };
        row(
            "pivot", [this] { LuPlatform::setMonitorPivot(m_monitor, 90); }, "screenGeometryChanged");
        row(
            "scaling", [this] { LuPlatform::setMonitorDpiScaling(m_monitor, 150); }, "screenGeometryChanged");
        row(
            "hidpi", [this] { LuPlatform::setMonitorHiDPI(m_monitor, true); }, "screenGeometryChanged");
        row(
            "resolution",
            [this] {
                LuPlatform::setResolution(m_monitor, QSize(1280, 720), 60, true, LuPlatform::PreferSameHidpi);
            },
            "screenGeometryChanged");
        row(
            "brightness", [this] { LuPlatform::setMonitorBrightness(m_panel, 0.75); },
            "systemBrightnessChanged");
        row(
            "volume", [] { LuMediaDevices::instance()->setSystemVolume(10); }, "systemVolumeChanged");
        row(
            "side", [] { LuKvm::instance()->setKvmDeviceLocation(LuKvm::RightLocation); },
            "deviceLocationChanged");
        row(
            "driver", [] { LuKvm::instance()->installDriver(); }, "kvmChanged");
    }

    void theProgramsChangeRaisesTheSignalOnceAndAfterTheCall()
    {
        QFETCH(std::function<void()>, change);
        QFETCH(QString, raised);
        Counter counter;
        change();
        QCOMPARE(counter.raised, QStringList());
        QTRY_COMPARE(counter.raised.join(u' '), raised);
        change(); // the same value again is no change
        QCoreApplication::processEvents();
        QCOMPARE(counter.raised.join(u' '), raised);
    }

    void aChangeFromAQueueArrivesOnTheGuiThread()
    {
        QList<QThread*> threads;
        QObject receiver;
        connect(
            LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged, &receiver,
            [&] { threads.append(QThread::currentThread()); }, Qt::DirectConnection);
        // Both sides go on until they have met often.
        constexpr int meetings = 300;
        std::atomic<int> changes = 0;
        std::atomic<bool> isDone = false;
        std::thread queue([&] {
            while (!isDone) {
                LuPlatform::setMonitorPivot(m_monitor, ++changes % 2 ? 90 : 0);
                LuPlatform::getMonitorResolution(m_other);
            }
        });
        int slanted = 0;
        for (int meeting = 0; meeting < meetings || changes < meetings; ++meeting) {
            slanted += LuPlatform::getMonitorPivot(m_monitor) % 90;
            m_session->get(QStringLiteral("TK30Z@A1/pivot"));
            QCoreApplication::processEvents();
        }
        isDone = true;
        queue.join();
        QCOMPARE(slanted, 0);
        QTRY_COMPARE(threads.size(), changes.load());
        QCOMPARE(threads.count(QCoreApplication::instance()->thread()), threads.size());
    }

    void aRefusedHiDpiChangesNothing()
    {
        QVERIFY(m_session->set(QStringLiteral("hiDpiRefused"), true));
        Counter counter;
        QVERIFY(!LuPlatform::setMonitorHiDPI(m_monitor, true));
        QVERIFY(!LuPlatform::getMonitorHiDPI(m_monitor));
        QVERIFY(m_session->set(QStringLiteral("TK30Z@A1/hiDpiRefused"), false));
        QVERIFY(LuPlatform::setMonitorHiDPI(m_monitor, true));
        QVERIFY(!LuPlatform::setMonitorHiDPI(m_other, true));
    }

    void onlyABuiltInPanelHasASystemBrightness()
    {
        QCOMPARE(LuPlatform::getMonitorBrightness(m_panel), 0.5);
        QVERIFY(LuPlatform::getMonitorBrightness(m_monitor) < 0);
        LuPlatform::setMonitorBrightness(m_monitor, 1);
        QCOMPARE(m_session->get(QStringLiteral("systemBrightness")).toDouble(), 0.5);
        LuPlatform::setMonitorBrightness(m_panel, 7);
        QCOMPARE(m_session->get(QStringLiteral("systemBrightness")).toDouble(), 1.0);
    }

    void applicationsAreFoundByProcessAndFile()
    {
        const QJsonValue applications =
            json(R"([{"pid":7,"id":"org.ed","name":"Editor","url":"file:\/\/\/opt/ed"},{"id":"org.idle"}])");
        QVERIFY(m_session->set(QStringLiteral("applications"), applications));
        LuPlatformProgram* const program = LuPlatformProgram::instance();
        QCOMPARE(program->appId(7UL), QStringLiteral("org.ed"));
        QCOMPARE(program->appId(8UL), QString());
        QCOMPARE(program->appId(0UL), QString());
        QCOMPARE(program->appId(QUrl(QStringLiteral("file:///opt/ed"))), QStringLiteral("org.ed"));
        QCOMPARE(program->appId(QUrl(QStringLiteral("file:///opt/other"))), QStringLiteral("/opt/other"));
        QCOMPARE(program->appDisplayName(QStringLiteral("org.ed")), QStringLiteral("Editor"));
        QCOMPARE(program->appDisplayName(QStringLiteral("/opt/other")), QStringLiteral("other"));
        QCOMPARE(program->appUrl(QStringLiteral("org.ed")), QUrl(QStringLiteral("file:///opt/ed")));
        QCOMPARE(program->appUrl(QStringLiteral("/opt/other")), QUrl(QStringLiteral("file:///opt/other")));
        QCOMPARE(program->appUrl(QStringLiteral("org.idle")), QUrl());
    }

    void openedProgramsAndAddressesAreListedInOrder()
    {
        QVERIFY(m_session->set(QStringLiteral("openRefused"), json(R"(["/bin/no"])")));
        QVERIFY(LuPlatformProgram::instance()->openApplication(QStringLiteral("/bin/ed")));
        QVERIFY(!LuPlatformProgram::instance()->openApplication(QStringLiteral("/bin/no")));
        const QString address = QStringLiteral("https://example.org/search?q=a%2Bb%26c");
        QVERIFY(QDesktopServices::openUrl(QUrl(address)));
        LuMediaDevices::instance()->openSystemSettings();
        const QJsonArray opened{QStringLiteral("/bin/ed"), address, QStringLiteral("settings:sound")};
        QCOMPARE(text(m_session->get(QStringLiteral("opened"))), text(opened));
    }

    void placedWindowsAreKept()
    {
        LuPlatformProgram::instance()->setApplicationGeometry(7, QRectF(1, 2, 3.5, 4));
        QCOMPARE(text(m_session->get(QStringLiteral("windows"))),
                 text(json(R"({"7":{"x":1,"y":2,"width":3.5,"height":4}})")));
    }

    void theListOfApplicationsBecomesReady()
    {
        QVERIFY(LuPlatformProgram::instance()->appListReady);
        QVERIFY(m_session->set(QStringLiteral("applicationsReady"), false));
        QVERIFY(!LuPlatformProgram::instance()->appListReady);
        Counter counter;
        bool readyWhenTold = false;
        connect(LuPlatformNotifications::instance(), &LuPlatformNotifications::appListInitialized, &counter,
                [&] { readyWhenTold = LuPlatformProgram::instance()->appListReady; });
        QVERIFY(m_session->set(QStringLiteral("applicationsReady"), true));
        QVERIFY(readyWhenTold);
    }

    void audioOutputsAreDevicesOfQt()
    {
        const QJsonValue two = json(R"([{"id":"a","name":"Speakers"},{"id":"h","name":"HDMI TK30Z"}])");
        QVERIFY(m_session->set(QStringLiteral("audioOutputs"), two));
        const QList<QAudioDevice> outputs = LuMediaDevices::audioOutputs();
        QCOMPARE(outputs.size(), 2);
        QCOMPARE(outputs[1].id(), QByteArray("h"));
        QCOMPARE(outputs[1].description(), QStringLiteral("HDMI TK30Z"));
        QCOMPARE(outputs[1].mode(), QAudioDevice::Output);
        QVERIFY(!outputs[1].isNull());
        QVERIFY(!outputs[1].isDefault());
        QVERIFY(outputs[0] != outputs[1]);
        // The default that is gone is replaced by the first.
        QCOMPARE(LuMediaDevices::defaultAudioOutput().id(), QByteArray("a"));
        QVERIFY(LuMediaDevices::defaultAudioOutput() == outputs[0]);
        QCOMPARE(LuMediaDevices::instance()->deviceDisplayName(outputs[1]), QStringLiteral("HDMI TK30Z"));

        Counter counter;
        LuMediaDevices::instance()->setDefaultAudioOutputDevice(outputs[1]);
        QTRY_COMPARE(counter.raised, QStringList{QStringLiteral("audioOutputsChanged")});
        QCOMPARE(LuMediaDevices::defaultAudioOutput().id(), QByteArray("h"));
        QCOMPARE(m_session->get(QStringLiteral("defaultAudioOutput")).toString(), QStringLiteral("h"));

        QVERIFY(m_session->set(QStringLiteral("audioOutputs"), QJsonArray()));
        QVERIFY(LuMediaDevices::defaultAudioOutput().isNull());
        // A device that is gone cannot become the default.
        LuMediaDevices::instance()->setDefaultAudioOutputDevice(outputs[0]);
        QVERIFY(LuMediaDevices::defaultAudioOutput().isNull());
    }

    void aDefaultOutputIsTakenAsADeviceToo()
    {
        const QJsonValue device = json(R"({"id":"BuiltInSpeakerDevice","name":"x"})");
        QVERIFY(m_session->set(QStringLiteral("defaultAudioOutput"), device));
        QCOMPARE(m_session->get(QStringLiteral("defaultAudioOutput")).toString(), device[u"id"].toString());
    }

    void theVolumeIsClamped()
    {
        LuMediaDevices* const media = LuMediaDevices::instance();
        media->setSystemVolume(200);
        QCOMPARE(media->systemVolume(), 100);
        media->setProperty("systemVolume", -5);
        QCOMPARE(media->property("systemVolume").toInt(), 0);
    }

    void aLocationKeepsWhatIsNotGiven()
    {
        QCOMPARE(LuServerLocation::instance()->status(), 0);
        QVERIFY(m_session->set(QStringLiteral("location"),
                               json(R"({"latitude":52.5,"longitude":13.4,"status":1})")));
        QVERIFY(m_session->set(QStringLiteral("location"), json(R"({"status":2})")));
        QCOMPARE(LuServerLocation::instance()->latitude(), 52.5);
        QCOMPARE(LuServerLocation::instance()->longitude(), 13.4);
        QCOMPARE(LuServerLocation::instance()->status(), 2);
    }

    void kvmCallsAreListedInOrder()
    {
        LuKvm* const kvm = LuKvm::instance();
        kvm->setKvmType(LuKvm::SmartKvmBasic);
        kvm->setScreenRect(QRect(1, 2, 3, 4));
        kvm->activate();
        kvm->setKvmDeviceLocation(LuKvm::BottomLocation);
        kvm->deactivate();
        kvm->installDriver();
        QVERIFY(kvm->isDriverInstalled());
        QVERIFY(!kvm->isConnected());
        QCOMPARE(kvm->getKvmDeviceLocation(), LuKvm::BottomLocation);
        const QJsonObject expected =
            json(R"({"active":false,"type":2,"rect":{"x":1,"y":2,"width":3,"height":4},
            "location":3,"connected":false,"driverInstalled":true,
            "calls":["setKvmType","setScreenRect","activate","setKvmDeviceLocation","deactivate","installDriver"]})")
                .toObject();
        QCOMPARE(text(m_session->get(QStringLiteral("kvm"))), text(expected));
    }

    void aKvmSideIsTakenByNameAndTheRestStays()
    {
        LuKvm::instance()->activate();
        Counter counter;
        QVERIFY(m_session->set(QStringLiteral("kvm"), json(R"({"location":"RightLocation"})")));
        QCOMPARE(counter.raised, QStringList{QStringLiteral("deviceLocationChanged")});
        QCOMPARE(LuKvm::instance()->getKvmDeviceLocation(), LuKvm::RightLocation);
        QVERIFY(m_session->get(QStringLiteral("kvm"))[u"active"].toBool());
        QVERIFY(m_session->set(QStringLiteral("kvm"), json(R"({"calls":[]})")));
        QCOMPARE(counter.raised.size(), 1);
        QVERIFY(m_session->set(QStringLiteral("kvm"), json(R"({"connected":true})")));
        QCOMPARE(counter.raised.last(), QStringLiteral("kvmChanged"));
        QVERIFY(LuKvm::instance()->isConnected());
    }

    void copyPutsTheSelectionOnTheClipboard()
    {
        QClipboard* const clipboard = QGuiApplication::clipboard();
        clipboard->setText(QStringLiteral("before"));
        QSignalSpy changed(clipboard, &QClipboard::dataChanged);
        LuPlatform::simulateCopy(); // nothing is selected
        QCOMPARE(changed.count(), 0);
        QVERIFY(m_session->set(QStringLiteral("selection"), json(R"({"text":"chosen"})")));
        LuPlatform::simulateCopy();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(clipboard->text(), QStringLiteral("chosen"));
        std::thread([] { LuPlatform::simulateCopy(); }).join();
        QTRY_COMPARE(changed.count(), 2);
    }

    // The paste of a queue takes what is there at that moment, although the clipboard is the GUI thread's.
    void pasteTakesTheClipboardOfTheMoment()
    {
        QGuiApplication::clipboard()->setText(QStringLiteral("one"));
        std::thread([] { LuPlatform::simulatePaste(); }).join();
        QGuiApplication::clipboard()->setText(QStringLiteral("two"));
        LuPlatform::simulatePaste();
        QCOMPARE(text(m_session->get(QStringLiteral("pasted"))),
                 text(json(R"([{"text":"one"},{"text":"two"}])")));
    }

    void aPictureTravelsAsPng()
    {
        QImage image(3, 2, QImage::Format_ARGB32);
        image.fill(QColor(1, 2, 3));
        QByteArray png;
        QBuffer buffer(&png);
        QVERIFY(buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG"));
        const QJsonObject content{{QStringLiteral("image"), QString::fromLatin1(png.toBase64())}};
        QVERIFY(m_session->set(QStringLiteral("clipboard"), content));
        QCOMPARE(QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_ARGB32), image);
        const QJsonValue back = m_session->get(QStringLiteral("clipboard"))[u"image"];
        QCOMPARE(QImage::fromData(QByteArray::fromBase64(back.toString().toLatin1()))
                     .convertToFormat(QImage::Format_ARGB32),
                 image);
    }

    void anEmptyClipboardIsAnEmptyObject()
    {
        QVERIFY(m_session->set(QStringLiteral("clipboard"), json(R"({"text":"a"})")));
        QVERIFY(m_session->set(QStringLiteral("clipboard"), QJsonValue()));
        QCOMPARE(text(m_session->get(QStringLiteral("clipboard"))), text(QJsonObject()));
    }

    void screensBecomeQtsInTheirOrder_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::newRow("one") << QStringList{QStringLiteral("A")};
        QTest::newRow("two") << QStringList{QStringLiteral("A"), QStringLiteral("B")};
        QTest::newRow("two turned") << QStringList{QStringLiteral("B"), QStringLiteral("A")};
        QTest::newRow("three") << QStringList{QStringLiteral("C"), QStringLiteral("A"), QStringLiteral("B")};
        QTest::newRow("unnamed") << QStringList{QStringLiteral("A"), QString()};
    }

    void screensBecomeQtsInTheirOrder()
    {
        QFETCH(QStringList, names);
        setScreens({QStringLiteral("X"), QStringLiteral("A"), QStringLiteral("B")});
        setScreens(names);
        QStringList shown;
        const QList<QScreen*> screens = QGuiApplication::screens();
        for (int index = 0; index < screens.size(); ++index) {
            shown.append(screens[index]->name());
            QCOMPARE(screens[index]->geometry(), QRect(index * 800, 0, 800, 600));
            QCOMPARE(screens[index]->availableGeometry(), QRect(index * 800, 30, 800, 570));
        }
        QCOMPARE(shown, names);
    }

    void theRealScreensComeBack()
    {
        const QJsonValue before = m_session->get(QStringLiteral("screens"));
        const QRect geometry = QGuiApplication::primaryScreen()->geometry();
        QCOMPARE(before.toArray().size(), 1);
        setScreens({QStringLiteral("A"), QStringLiteral("B")});
        QVERIFY(m_session->set(QStringLiteral("screens"), QJsonValue()));
        QCOMPARE(text(m_session->get(QStringLiteral("screens"))), text(before));
        QCOMPARE(QGuiApplication::screens().size(), 1);
        QCOMPARE(QGuiApplication::primaryScreen()->geometry(), geometry);
    }

    void aScreenBelongsToItsMonitor()
    {
        int told = 0;
        services::SimulatedServices::Monitors monitors;
        monitors.screensChanged = [&] { ++told; };
        m_session->setMonitors(monitors);
        const QJsonValue screens =
            json(R"([{"name":"A","rect":{"x":0,"y":0,"width":8,"height":6},"monitor":"TK20@B2"},
        {"name":"B","rect":{"x":8,"y":0,"width":9,"height":7},"monitor":"TK30Z"}])");
        QVERIFY(m_session->set(QStringLiteral("screens"), screens));
        QCOMPARE(told, 1);
        QCOMPARE(m_session->screenOf(m_other->id()), QStringLiteral("A"));
        QCOMPARE(m_session->screenOf(m_monitor->id()), QStringLiteral("B"));
        QCOMPARE(m_session->screenOf(m_panel->id()), QString());
        QCOMPARE(LuPlatform::getNativeScreenRect(m_other->nativeHandle()), QRect(0, 0, 8, 6));
        QCOMPARE(LuPlatform::getNativeScreenRect(QStringLiteral("B")), QRect(8, 0, 9, 7));
        QVERIFY(LuPlatform::getNativeScreenRect(QStringLiteral("Z")).isNull());
    }

    void theComputersModelIsReplacedAndComesBack()
    {
        const QString real = ZrPlatform::deviceModel();
        QVERIFY(m_session->set(QStringLiteral("deviceModel"), QStringLiteral("Book 1,1")));
        QCOMPARE(ZrPlatform::deviceModel(), QStringLiteral("Book 1,1"));
        m_session.reset();
        QCOMPARE(ZrPlatform::deviceModel(), real);
    }

    void windowRequestsAreKeptOnTheWindow()
    {
        QQuickWindow window;
        LuPlatform::setWindowLayer(&window, 3);
        LuPlatform::setWindowJoinActiveSpaces(&window, true);
        QCOMPARE(window.property("windowLayer").toInt(), 3);
        QCOMPARE(window.property("joinActiveSpaces").toBool(), true);
    }

    void aStateFileIsLoadedWithWhatIsForAllFirst()
    {
        Error error;
        const QJsonValue state = json(R"({"TK30Z/pivot":90,"pivot":180,"systemVolume":12,
        "defaultAudioOutput":"h","audioOutputs":[{"id":"a"},{"id":"h"}]})");
        QVERIFY2(m_session->loadState(state.toObject(), &error), qPrintable(error.message));
        QCOMPARE(LuPlatform::getMonitorPivot(m_monitor), 90);
        QCOMPARE(LuPlatform::getMonitorPivot(m_other), 180);
        QCOMPARE(LuMediaDevices::instance()->systemVolume(), 12);
        QCOMPARE(LuMediaDevices::defaultAudioOutput().id(), QByteArray("h"));
    }

    void aStateFilesErrorNamesThePath()
    {
        Error error;
        QVERIFY(!m_session->loadState(json(R"({"systemVolume":"loud"})").toObject(), &error));
        QCOMPARE(error.code, int(Error::WrongType));
        QVERIFY(error.message.contains(u"systemVolume"));
        QVERIFY(!m_session->loadState(json(R"({"loudness":1})").toObject(), &error));
        QCOMPARE(error.code, int(Error::NoSuchPath));
        QVERIFY(error.message.contains(u"loudness"));
    }

    void servicesGoWithTheSession()
    {
        LuPlatform::setMonitorPivot(m_monitor, 90);
        m_session.reset();
        QCOMPARE(LuPlatform::getMonitorPivot(m_monitor), 0);
        QCoreApplication::processEvents();
    }

private:
    void setScreens(const QStringList& names)
    {
        QJsonArray screens;
        for (const QString& name : names) {
            const int x = int(screens.size()) * 800;
            QJsonObject screen = json(R"({"rect":{"y":0,"width":800,"height":600},
                                          "available":{"y":30,"width":800,"height":570}})")
                                     .toObject();
            for (const QString& area : {QStringLiteral("rect"), QStringLiteral("available")}) {
                QJsonObject rect = screen[area].toObject();
                rect[u"x"] = x;
                screen[area] = rect;
            }
            screen[u"name"] = name;
            screens.append(screen);
        }
        Error error;
        QVERIFY2(m_session->set(QStringLiteral("screens"), screens, &error), qPrintable(error.message));
    }

    std::unique_ptr<services::SimulatedServices> m_session;
    QSharedPointer<MonitorInfo> m_monitor;
    QSharedPointer<MonitorInfo> m_other;
    QSharedPointer<MonitorInfo> m_panel;
};

QTEST_MAIN(TestSimulatedServices)
#include "tst_simulatedservices.moc"
