// SPDX-License-Identifier: Apache-2.0
#include "DeskProcess.h"
#include "MutterServer.h"
#include "PlasmaSession.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

#include <linux/input-event-codes.h>

using namespace Qt::StringLiterals;

/// The whole program under a compositor that gives every window the focus: it shows no feedback.
class tst_mutter_feedback : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void stepShowsNoWindow();

private:
    ControlClient& client() { return m_desk.client(); }
    /// Asks Mutter's remote control of its keyboard.
    bool input(const QString& method, const QVariantList& arguments = {});
    /// Presses the keys that make the monitor brighter.
    void step()
    {
        for (const bool down : {true, false}) {
            for (const uint key : {KEY_LEFTCTRL, KEY_LEFTSHIFT, KEY_F5})
                input(u"NotifyKeyboardKeycode"_s, {key, down});
        }
    }
    /// Titles of the windows that show.
    QStringList windows();

    PlasmaSession m_session;
    MutterServer m_mutter;
    QString m_control; ///< Path of the remote control.
    DeskProcess m_desk;
};

void tst_mutter_feedback::initTestCase()
{
    QString problem = m_session.startBus();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    problem = m_mutter.startOn(m_session.socket());
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    qputenv("WAYLAND_DISPLAY", KWinServer::display().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "wayland");
    qputenv("QT_QUICK_BACKEND", "software");
    QVERIFY2(m_desk.start(
                 {u"--simulate"_s, u"TK30Z"_s, u"--services"_s, u"native"_s, u"--ddc-timing"_s, u"fast"_s},
                 Patience),
             qPrintable(m_desk.errors()));
    QVERIFY(client().call(u"idle"_s, {}, Patience).ok());
    QVERIFY(client().call(u"ui.show"_s, {}, Patience).ok());
    QTRY_COMPARE_WITH_TIMEOUT(windows().size(), 1, Patience);
    QVERIFY(client().set(u"shortcuts.active"_s, true).ok());
    const QDBusReply<QDBusObjectPath> control =
        QDBusConnection::sessionBus().call(QDBusMessage::createMethodCall(
            u"org.gnome.Mutter.RemoteDesktop"_s, u"/org/gnome/Mutter/RemoteDesktop"_s,
            u"org.gnome.Mutter.RemoteDesktop"_s, u"CreateSession"_s));
    QVERIFY2(control.isValid(), qPrintable(control.error().message()));
    m_control = control.value().path();
    QVERIFY(input(u"Start"_s));
}

void tst_mutter_feedback::cleanupTestCase()
{
    QCOMPARE(m_desk.stop(), 0);
    m_mutter.stop();
    m_session.stop();
}

bool tst_mutter_feedback::input(const QString& method, const QVariantList& arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        u"org.gnome.Mutter.RemoteDesktop"_s, m_control, u"org.gnome.Mutter.RemoteDesktop.Session"_s, method);
    message.setArguments(arguments);
    const QDBusMessage reply = QDBusConnection::sessionBus().call(message);
    if (reply.type() == QDBusMessage::ErrorMessage)
        qWarning() << reply.errorMessage();
    return reply.type() == QDBusMessage::ReplyMessage;
}

QStringList tst_mutter_feedback::windows()
{
    QStringList titles;
    const QJsonArray all = client().call(u"ui.windows"_s, {}, Patience).result.toArray();
    for (const QJsonValue& each : all) {
        if (each[u"visible"].toBool())
            titles.append(each[u"name"].toString());
    }
    return titles;
}

void tst_mutter_feedback::stepShowsNoWindow()
{
    const QStringList before = windows();
    const QString brightness = u"brightness.displayBrightness"_s;
    const auto isBrighterThan = [&](int than) { return client().get(brightness).toInt() > than; };
    for (const int start : {30, 70}) {
        QVERIFY(client().set(brightness, start).ok());
        QVERIFY(client().call(u"idle"_s, {}, Patience).ok());
        // The compositor may take its time to give the window its first focus; a step more is no harm.
        QTRY_VERIFY_WITH_TIMEOUT((step(), QTest::qWaitFor([&] { return isBrighterThan(start); }, 2000)),
                                 Patience);
        // The feedback would open with the key, before the monitor has the step.
        QCOMPARE(windows(), before);
    }
    QCOMPARE(client().call(u"ui.warnings"_s).result.toArray(), QJsonArray());
}

QTEST_GUILESS_MAIN(tst_mutter_feedback)
#include "tst_mutter_feedback.moc"
