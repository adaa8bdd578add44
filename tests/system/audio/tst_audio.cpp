// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuMediaDevices.h>

#include "PrivateBus.h"
#include "lushared/services/ServiceRegistry.h"
#include "services/api/AudioService.h"
#include "services/pulse/PulseAudio.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A sound server with the outputs out_a and out_b, which play nowhere.
class SoundServer
{
public:
    /// Starts it; on failure says why.
    virtual QString start() = 0;
    virtual void stop() = 0;
    virtual ~SoundServer() = default;

protected:
    static bool answers() { return runTool(u"pactl"_s, {u"info"_s}); }
};

class PulseServer : public SoundServer
{
public:
    QString start() override
    {
        return m_server.start(u"pulseaudio"_s,
                              {u"--exit-idle-time=-1"_s, u"--daemonize=no"_s, u"-n"_s, u"-L"_s,
                               u"module-native-protocol-unix"_s, u"-L"_s, u"module-always-sink"_s, u"-L"_s,
                               u"module-null-sink sink_name=out_a sink_properties=device.description=Alpha"_s,
                               u"-L"_s,
                               u"module-null-sink sink_name=out_b sink_properties=device.description=Beta"_s},
                              [] { return answers(); });
    }
    void stop() override { m_server.stop(); }

private:
    ServerProcess m_server;
};

class PipeWireServer : public SoundServer
{
public:
    QString start() override
    {
        // Each looks for the one before it as it starts, once.
        const auto hasSocket = [](const QString& name) {
            return [name] { return QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + u'/' + name); };
        };
        QString problem = m_pipeWire.start(u"pipewire"_s, {}, hasSocket(u"pipewire-0"_s));
        if (problem.isEmpty())
            problem = m_pulse.start(u"pipewire-pulse"_s, {}, hasSocket(u"pulse/native"_s));
        if (problem.isEmpty())
            problem = m_manager.start(u"wireplumber"_s, {}, [] { return true; });
        if (!problem.isEmpty())
            return problem;
        // The session manager has a default only once it runs.
        const auto ready = [] {
            QString output;
            return runTool(u"pactl"_s, {u"get-default-sink"_s}, &output) &&
                   output.trimmed() != u"@DEFAULT_SINK@"_s;
        };
        if (!QTest::qWaitFor(ready, 30'000))
            return u"PipeWire does not serve: "_s + m_pipeWire.output() + m_pulse.output() +
                   m_manager.output();
        for (const auto& [name, title] :
             {std::pair(u"out_a"_s, u"Alpha"_s), std::pair(u"out_b"_s, u"Beta"_s)}) {
            if (!addOutput(name, title))
                return u"an output cannot be made: "_s + m_manager.output();
        }
        return {};
    }
    void stop() override
    {
        m_manager.stop();
        m_pulse.stop();
        m_pipeWire.stop();
        // A socket that was left behind would pass for a server.
        QFile::remove(qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/pipewire-0"_s);
        QFile::remove(qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/pulse/native"_s);
    }

private:
    /// An output that can become the default. The session manager may overlook one that comes while it still
    /// starts; then it is made once more.
    static bool addOutput(const QString& name, const QString& title)
    {
        for (int attempt = 1; attempt <= 5; ++attempt) {
            QString module;
            if (!runTool(u"pactl"_s,
                         {u"load-module"_s, u"module-null-sink"_s, u"sink_name="_s + name,
                          u"sink_properties=device.description="_s + title},
                         &module))
                return false;
            const auto isDefault = [&name] {
                QString output;
                return runTool(u"pactl"_s, {u"set-default-sink"_s, name}) &&
                       runTool(u"pactl"_s, {u"get-default-sink"_s}, &output) && output.trimmed() == name;
            };
            if (QTest::qWaitFor(isDefault, 5000 * attempt))
                return true;
            runTool(u"pactl"_s, {u"unload-module"_s, module.trimmed()});
        }
        return false;
    }

    ServerProcess m_pipeWire;
    ServerProcess m_pulse;
    ServerProcess m_manager;
};

QStringList ids()
{
    QStringList result;
    const QList<QAudioDevice> devices = LuMediaDevices::audioOutputs();
    for (const QAudioDevice& device : devices)
        result.append(QString::fromUtf8(device.id()));
    result.sort();
    return result;
}

QString defaultId()
{
    return QString::fromUtf8(LuMediaDevices::defaultAudioOutput().id());
}

QAudioDevice device(const QString& id)
{
    const QList<QAudioDevice> devices = LuMediaDevices::audioOutputs();
    for (const QAudioDevice& each : devices) {
        if (each.id() == id.toUtf8())
            return each;
    }
    return {};
}

/// The server's own word: of a tool, without the code under test.
QString asked(const QStringList& arguments)
{
    QString output;
    return runTool(u"pactl"_s, arguments, &output) ? output : u"failed: "_s + output;
}

} // namespace

/// The same on both sound servers: argument "pipewire" or none.
class tst_audio : public QObject
{
    Q_OBJECT

public:
    bool usePipeWire = false;

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void outputsAreTheServers();
    void oneOutputIsTheDefault();
    void equalQuestionsGetEqualValues();
    void choosingAnOutputMakesItTheDefault();
    void defaultChosenElsewhereIsTold();
    void unknownDeviceChangesNothing();
    void outputsThatComeAndGoAreTold();
    void volumeIsSetOnTheDefault_data();
    void volumeIsSetOnTheDefault();
    void volumeChangedElsewhereIsTold();
    void lastOfManyVolumesStands();
    void balanceIsKept();
    void settingAVolumeEndsAMute();
    void volumeOverFullIsFull();
    void otherOutputsVolumeIsNotTheSystems();
    void serverMayGoAndComeBack();

private:
    QTemporaryDir m_home;
    PrivateBus m_bus;
    std::unique_ptr<SoundServer> m_server;
};

void tst_audio::initTestCase()
{
    QVERIFY(m_home.isValid());
    for (const char* const variable : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_STATE_HOME"})
        qputenv(variable, m_home.path().toLocal8Bit());
    qunsetenv("PULSE_SERVER");
    QString problem = m_bus.start();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    // Without a bus, PipeWire's session manager waits for one.
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.address().toUtf8());
    if (usePipeWire)
        m_server = std::make_unique<PipeWireServer>();
    else
        m_server = std::make_unique<PulseServer>();
    problem = m_server->start();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    services::ServiceSet set;
    set.audio = services::makePulseAudio();
    services::Registry::install(set);
}

void tst_audio::cleanupTestCase()
{
    services::Registry::install({});
    if (m_server)
        m_server->stop();
}

void tst_audio::init()
{
    QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList({u"out_a"_s, u"out_b"_s}), 30'000);
    asked({u"set-sink-mute"_s, u"out_a"_s, u"0"_s});
    asked({u"set-sink-volume"_s, u"out_a"_s, u"30%"_s});
    asked({u"set-sink-volume"_s, u"out_b"_s, u"60%"_s});
    asked({u"set-default-sink"_s, u"out_a"_s});
    QTRY_COMPARE(defaultId(), u"out_a"_s);
    QTRY_COMPARE(LuMediaDevices::instance()->systemVolume(), 30);
}

void tst_audio::outputsAreTheServers()
{
    const QAudioDevice alpha = device(u"out_a"_s);
    QVERIFY(!alpha.isNull());
    QCOMPARE(alpha.mode(), QAudioDevice::Output);
    QCOMPARE(alpha.description(), u"Alpha"_s);
    QCOMPARE(LuMediaDevices::instance()->deviceDisplayName(alpha), u"Alpha"_s);
    QCOMPARE(LuMediaDevices::instance()->deviceDisplayName(device(u"out_b"_s)), u"Beta"_s);
}

void tst_audio::oneOutputIsTheDefault()
{
    QVERIFY(device(u"out_a"_s).isDefault());
    QVERIFY(!device(u"out_b"_s).isDefault());
    QVERIFY(LuMediaDevices::defaultAudioOutput().isDefault());
}

void tst_audio::equalQuestionsGetEqualValues()
{
    QCOMPARE(LuMediaDevices::audioOutputs(), LuMediaDevices::audioOutputs());
    QVERIFY(LuMediaDevices::audioOutputs().contains(LuMediaDevices::defaultAudioOutput()));
}

void tst_audio::choosingAnOutputMakesItTheDefault()
{
    QSignalSpy changed(LuMediaDevices::instance(), &QMediaDevices::audioOutputsChanged);
    LuMediaDevices::instance()->setDefaultAudioOutputDevice(device(u"out_b"_s));
    QTRY_COMPARE(defaultId(), u"out_b"_s);
    QTRY_VERIFY(changed.count() >= 1);
    QTRY_COMPARE(asked({u"get-default-sink"_s}).trimmed(), u"out_b"_s);
    // The system volume is that of the default output.
    QTRY_COMPARE(LuMediaDevices::instance()->systemVolume(), 60);
}

void tst_audio::defaultChosenElsewhereIsTold()
{
    QSignalSpy changed(LuMediaDevices::instance(), &QMediaDevices::audioOutputsChanged);
    asked({u"set-default-sink"_s, u"out_b"_s});
    QTRY_COMPARE(defaultId(), u"out_b"_s);
    QTRY_VERIFY(changed.count() >= 1);
}

void tst_audio::unknownDeviceChangesNothing()
{
    asked({u"load-module"_s, u"module-null-sink"_s, u"sink_name=out_c"_s});
    QTRY_VERIFY(!device(u"out_c"_s).isNull());
    const QAudioDevice gone = device(u"out_c"_s);
    asked({u"unload-module"_s, u"module-null-sink"_s});
    QTRY_VERIFY(ids().isEmpty());
    LuMediaDevices::instance()->setDefaultAudioOutputDevice(gone);
    LuMediaDevices::instance()->setSystemVolume(50);
    QVERIFY(LuMediaDevices::defaultAudioOutput().isNull());
    QCOMPARE(LuMediaDevices::instance()->systemVolume(), 0);
    for (const QString& name : {u"out_a"_s, u"out_b"_s})
        asked({u"load-module"_s, u"module-null-sink"_s, u"sink_name="_s + name,
               u"sink_properties=device.description="_s + (name == u"out_a"_s ? u"Alpha"_s : u"Beta"_s)});
    QTRY_COMPARE(ids(), QStringList({u"out_a"_s, u"out_b"_s}));
}

void tst_audio::outputsThatComeAndGoAreTold()
{
    QSignalSpy changed(LuMediaDevices::instance(), &QMediaDevices::audioOutputsChanged);
    const QString module = asked({u"load-module"_s, u"module-null-sink"_s, u"sink_name=out_c"_s}).trimmed();
    QTRY_COMPARE(ids(), QStringList({u"out_a"_s, u"out_b"_s, u"out_c"_s}));
    QTRY_VERIFY(changed.count() >= 1);
    changed.clear();
    asked({u"unload-module"_s, module});
    QTRY_COMPARE(ids(), QStringList({u"out_a"_s, u"out_b"_s}));
    QTRY_VERIFY(changed.count() >= 1);
}

void tst_audio::volumeIsSetOnTheDefault_data()
{
    QTest::addColumn<int>("set");
    QTest::addColumn<int>("expected");
    QTest::newRow("half") << 50 << 50;
    QTest::newRow("nothing") << 0 << 0;
    QTest::newRow("full") << 100 << 100;
    QTest::newRow("an odd number") << 33 << 33;
    QTest::newRow("over full") << 150 << 100;
    QTest::newRow("under nothing") << -5 << 0;
}

void tst_audio::volumeIsSetOnTheDefault()
{
    QFETCH(int, set);
    QFETCH(int, expected);
    QSignalSpy changed(LuMediaDevices::instance(), &LuMediaDevices::systemVolumeChanged);
    LuMediaDevices::instance()->setSystemVolume(set);
    QCOMPARE(LuMediaDevices::instance()->systemVolume(), expected);
    const QString percent = u' ' + QString::number(expected) + u'%';
    QTRY_VERIFY(asked({u"get-sink-volume"_s, u"out_a"_s}).contains(percent));
    QTRY_VERIFY(changed.count() >= 1);
    QTRY_COMPARE(LuMediaDevices::instance()->systemVolume(), expected);
    QVERIFY(asked({u"get-sink-volume"_s, u"out_b"_s}).contains(u" 60%"_s));
}

void tst_audio::volumeChangedElsewhereIsTold()
{
    QSignalSpy changed(LuMediaDevices::instance(), &LuMediaDevices::systemVolumeChanged);
    asked({u"set-sink-volume"_s, u"out_a"_s, u"77%"_s});
    QTRY_COMPARE(LuMediaDevices::instance()->systemVolume(), 77);
    QTRY_COMPARE(changed.count(), 1);
}

void tst_audio::lastOfManyVolumesStands()
{
    for (int percent = 0; percent <= 91; ++percent)
        LuMediaDevices::instance()->setSystemVolume(percent);
    QTRY_VERIFY(asked({u"get-sink-volume"_s, u"out_a"_s}).contains(u" 91%"_s));
    QTRY_COMPARE(LuMediaDevices::instance()->systemVolume(), 91);
}

void tst_audio::balanceIsKept()
{
    asked({u"set-sink-volume"_s, u"out_a"_s, u"80%"_s, u"40%"_s});
    QTRY_COMPARE(LuMediaDevices::instance()->systemVolume(), 80);
    LuMediaDevices::instance()->setSystemVolume(40);
    const auto channels = [] { return asked({u"get-sink-volume"_s, u"out_a"_s}); };
    QTRY_VERIFY2(channels().contains(u" 40%"_s) && channels().contains(u" 20%"_s), qPrintable(channels()));
}

void tst_audio::settingAVolumeEndsAMute()
{
    asked({u"set-sink-mute"_s, u"out_a"_s, u"1"_s});
    const auto mute = [] { return asked({u"get-sink-mute"_s, u"out_a"_s}).trimmed(); };
    QCOMPARE(mute(), u"Mute: yes"_s);
    // The connection has heard of the mute once it has heard of what came after it.
    asked({u"set-sink-volume"_s, u"out_a"_s, u"31%"_s});
    QTRY_COMPARE(LuMediaDevices::instance()->systemVolume(), 31);
    LuMediaDevices::instance()->setSystemVolume(45);
    QTRY_COMPARE(mute(), u"Mute: no"_s);
}

void tst_audio::volumeOverFullIsFull()
{
    asked({u"set-sink-volume"_s, u"out_a"_s, u"130%"_s});
    QTRY_COMPARE(LuMediaDevices::instance()->systemVolume(), 100);
}

void tst_audio::otherOutputsVolumeIsNotTheSystems()
{
    QSignalSpy changed(LuMediaDevices::instance(), &LuMediaDevices::systemVolumeChanged);
    asked({u"set-sink-volume"_s, u"out_b"_s, u"10%"_s});
    asked({u"set-sink-volume"_s, u"out_a"_s, u"35%"_s});
    QTRY_COMPARE(LuMediaDevices::instance()->systemVolume(), 35);
    QTRY_COMPARE(changed.count(), 1);
}

void tst_audio::serverMayGoAndComeBack()
{
    QSignalSpy changed(LuMediaDevices::instance(), &QMediaDevices::audioOutputsChanged);
    m_server->stop();
    QTRY_VERIFY(ids().isEmpty());
    QTRY_VERIFY(LuMediaDevices::defaultAudioOutput().isNull());
    QTRY_COMPARE(LuMediaDevices::instance()->systemVolume(), 0);
    LuMediaDevices::instance()->setSystemVolume(50);
    changed.clear();
    const QString problem = m_server->start();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    QTRY_COMPARE_WITH_TIMEOUT(ids(), QStringList({u"out_a"_s, u"out_b"_s}), 30'000);
    QTRY_VERIFY(changed.count() >= 1);
    // Names last, whatever the server's numbers are now.
    QCOMPARE(device(u"out_b"_s).description(), u"Beta"_s);
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    tst_audio test;
    QStringList arguments = QCoreApplication::arguments();
    test.usePipeWire = arguments.removeAll(u"--pipewire"_s) > 0;
    return QTest::qExec(&test, arguments);
}

#include "tst_audio.moc"
