// SPDX-License-Identifier: Apache-2.0
#include "DeskProcess.h"
#include "PrivateBus.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The server's own word, without the code under test.
QString asked(const QStringList& arguments)
{
    QString output;
    return runTool(u"pactl"_s, arguments, &output) ? output.trimmed() : u"failed: "_s + output;
}

} // namespace

/// The whole program in a session with a real sound server, one of whose outputs is a simulated monitor's.
class TestAudioDesk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void theMonitorsOutputIsKnown();
    void theSessionsVolumeIsRead();

private:
    bool begin()
    {
        return m_desk.start({u"--headless"_s, u"--simulate"_s, u"TK30Z"_s, u"--services"_s, u"native"_s,
                             u"--ddc-timing"_s, u"fast"_s}) &&
               m_desk.client().call(u"idle"_s).ok();
    }
    QJsonValue get(const QString& path) { return m_desk.client().get(path); }

    QTemporaryDir m_home;
    PrivateBus m_bus;
    ServerProcess m_server;
    DeskProcess m_desk;
};

void TestAudioDesk::initTestCase()
{
    QVERIFY(m_home.isValid());
    for (const char* const variable : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_STATE_HOME"})
        qputenv(variable, m_home.path().toLocal8Bit());
    for (const char* const variable : {"PULSE_SERVER", "DISPLAY", "WAYLAND_DISPLAY"})
        qunsetenv(variable);
    QString problem = m_bus.start();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.address().toUtf8());
    // As it is now, and not as it was when this object was made.
    m_server.environment = QProcessEnvironment::systemEnvironment();
    problem = m_server.start(
        u"pulseaudio"_s,
        {u"--exit-idle-time=-1"_s, u"--daemonize=no"_s, u"-n"_s, u"-L"_s, u"module-native-protocol-unix"_s,
         u"-L"_s, u"module-null-sink sink_name=desk sink_properties=device.description=Loudspeakers"_s,
         u"-L"_s, u"module-null-sink sink_name=monitor sink_properties=device.description=TK30Z"_s},
        [] { return runTool(u"pactl"_s, {u"info"_s}); });
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void TestAudioDesk::cleanup()
{
    QCOMPARE(m_desk.stop(), 0);
}

void TestAudioDesk::theMonitorsOutputIsKnown()
{
    asked({u"set-default-sink"_s, u"desk"_s});
    QVERIFY2(begin(), qPrintable(m_desk.errors()));
    QTRY_COMPARE(get(u"volume.mediaDevices.audioOutputs"_s).toArray().size(), 2);
    QCOMPARE(get(u"volume.isCurrentAudioOutput"_s), QJsonValue(false));
    // Somebody else's choice, then the program's.
    asked({u"set-default-sink"_s, u"monitor"_s});
    QTRY_COMPARE(get(u"volume.isCurrentAudioOutput"_s), QJsonValue(true));
    QVERIFY(m_desk.client()
                .call(u"call"_s, {{u"path"_s, u"volume.setDefaultAudioOutputDevice"_s},
                                  {u"args"_s, QJsonArray{u"desk"_s}}})
                .ok());
    QTRY_COMPARE(asked({u"get-default-sink"_s}), u"desk"_s);
    QTRY_COMPARE(get(u"volume.isCurrentAudioOutput"_s), QJsonValue(false));
    QStringList told;
    const QJsonArray events = m_desk.client().call(u"events"_s).result.toArray();
    for (const QJsonValue& row : events) {
        const QJsonObject event = row.toObject();
        if (event.value(u"action"_s).toInt() == 9)
            told.append(
                u"%1 %2"_s.arg(event.value(u"event"_s).toString()).arg(event.value(u"source"_s).toInt()));
    }
    QCOMPARE(told, (QStringList{u"monitor_speaker 1"_s, u"others 0"_s}));
}

void TestAudioDesk::theSessionsVolumeIsRead()
{
    asked({u"set-default-sink"_s, u"monitor"_s});
    asked({u"set-sink-volume"_s, u"monitor"_s, u"30%"_s});
    QVERIFY2(begin(), qPrintable(m_desk.errors()));
    QTRY_COMPARE(get(u"volume.systemVolume"_s), QJsonValue(30));
    asked({u"set-sink-volume"_s, u"monitor"_s, u"70%"_s});
    QTRY_COMPARE(get(u"volume.systemVolume"_s), QJsonValue(70));
    QVERIFY(m_desk.client().set(u"volume.mediaDevices.systemVolume"_s, 45).ok());
    QTRY_VERIFY(asked({u"get-sink-volume"_s, u"monitor"_s}).contains(u" 45%"_s));
    // The monitor's own volume is another one.
    QCOMPARE(get(u"volume.displayVolume"_s), QJsonValue(20));
}

QTEST_GUILESS_MAIN(TestAudioDesk)
#include "tst_audio_desk.moc"
