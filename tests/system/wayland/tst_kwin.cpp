// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuPlatformNotifications.h>

#include "PlasmaSession.h"
#include "services/wayland/KWinEvents.h"

#include <QDBusInterface>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using services::wayland::KWinEvents;

/// Windows and key combinations of a Plasma session: KWin without a screen, and applications on it.
class tst_kwin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void sessionWithoutKWinHasNone();
    void foregroundIsTold();
    void nothingIsToldAfterTheEnd();
    void windowIsPlaced();
    void scriptOfAnotherNameEndsNothing();
    void maximisedWindowIsPlaced();
    void tiledWindowIsPlaced();
    void ownKeysArePressed();
    void keysOfOthersAreNot();
    void takenBackKeysAreFree();

private:
    PlasmaSession m_session;
    std::shared_ptr<KWinEvents> m_events;
};

void tst_kwin::initTestCase()
{
    QString problem = m_session.startBus();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    sessionWithoutKWinHasNone();
    problem = m_session.startKWin();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    m_events = KWinEvents::make(QDBusConnection::sessionBus());
    QVERIFY(m_events);
}

void tst_kwin::cleanupTestCase()
{
    m_events.reset();
    m_session.stop();
}

void tst_kwin::sessionWithoutKWinHasNone()
{
    if (!m_events)
        QVERIFY(!KWinEvents::make(QDBusConnection::sessionBus()));
}

void tst_kwin::foregroundIsTold()
{
    QSignalSpy active(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeAppChanged);
    m_events->start();
    m_events->start();
    WindowProgram first;
    QCOMPARE(first.start(), QString());
    QTRY_VERIFY_WITH_TIMEOUT(
        !active.isEmpty() && active.last()[0].value<unsigned long>() == first.processId(), Patience);
    WindowProgram second;
    QCOMPARE(second.start(), QString());
    QTRY_COMPARE_WITH_TIMEOUT(active.last()[0].value<unsigned long>(), second.processId(), Patience);
    second.stop();
    QTRY_COMPARE_WITH_TIMEOUT(active.last()[0].value<unsigned long>(), first.processId(), Patience);
}

void tst_kwin::nothingIsToldAfterTheEnd()
{
    m_events->start();
    m_events->stop();
    QSignalSpy active(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeAppChanged);
    WindowProgram application;
    QCOMPARE(application.start(), QString());
    QTRY_VERIFY_WITH_TIMEOUT(m_session.placeOf(application.pid()) != u"nothing"_s,
                             Patience); // KWin has dealt with the window
    QVERIFY(active.isEmpty());
}

void tst_kwin::windowIsPlaced()
{
    WindowProgram application;
    QCOMPARE(application.start(), QString());
    QTRY_VERIFY_WITH_TIMEOUT(m_session.placeOf(application.pid()) != u"nothing"_s, Patience);
    m_events->setGeometry(application.processId(), QRectF(100, 120, 500, 400));
    QTRY_COMPARE_WITH_TIMEOUT(m_session.placeOf(application.pid()), u"100,120 500x400"_s, Patience);
    // On the second output.
    m_events->setGeometry(application.processId(), QRectF(1124, 50, 320, 240));
    QTRY_COMPARE_WITH_TIMEOUT(m_session.placeOf(application.pid()), u"1124,50 320x240"_s, Patience);
    m_events->setGeometry(999'999'999, QRectF(0, 0, 10, 10)); // nobody's
    // No script stays behind.
    QDBusInterface scripting(u"org.kde.KWin"_s, u"/Scripting"_s, u"org.kde.kwin.Scripting"_s);
    for (int script = 1; script <= 3; ++script) {
        const QString name = u"lumen-desk-place-%1-%2"_s.arg(QCoreApplication::applicationPid()).arg(script);
        QTRY_VERIFY_WITH_TIMEOUT(!QDBusReply<bool>(scripting.call(u"isScriptLoaded"_s, name)).value(),
                                 Patience);
    }
    QCOMPARE(m_session.placeOf(application.pid()), u"1124,50 320x240"_s);
}

void tst_kwin::scriptOfAnotherNameEndsNothing()
{
    QTemporaryDir folder;
    const QString name = folder.filePath(u"somebodys.js"_s);
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    // From the folder of the scripts, which lies beside this one.
    m_events->ended(u"../"_s + QFileInfo(folder.path()).fileName() + u"/somebodys"_s);
    QVERIFY(QFile::exists(name));
}

void tst_kwin::maximisedWindowIsPlaced()
{
    WindowProgram application;
    QCOMPARE(application.start(), QString());
    QTRY_VERIFY_WITH_TIMEOUT(
        m_session.placeOf(application.pid(), u"window.setMaximize(true, true);"_s) != u"nothing"_s, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(m_session.placeOf(application.pid()), u"0,0 1024x768"_s, Patience);
    m_events->setGeometry(application.processId(), QRectF(10, 20, 500, 400));
    QTRY_COMPARE_WITH_TIMEOUT(m_session.placeOf(application.pid()), u"10,20 500x400"_s, Patience);
}

void tst_kwin::tiledWindowIsPlaced()
{
    WindowProgram application;
    QCOMPARE(application.start(), QString());
    QVERIFY(m_session.hasFocus(application.pid()));
    m_session.ask(u"    workspace.slotWindowQuickTileRight();\n    answer(\"\");"_s);
    QTRY_COMPARE_WITH_TIMEOUT(m_session.placeOf(application.pid()), u"512,0 512x768"_s, Patience);
    m_events->setGeometry(application.processId(), QRectF(10, 20, 500, 400));
    QTRY_COMPARE_WITH_TIMEOUT(m_session.placeOf(application.pid()), u"10,20 500x400"_s, Patience);
}

void tst_kwin::ownKeysArePressed()
{
    QList<QKeyCombination> handled;
    m_events->setKeyHandler([&](Qt::KeyboardModifiers modifiers, Qt::Key key, bool) {
        handled.append(QKeyCombination(modifiers, key));
        return true;
    });
    QSignalSpy pressed(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeKeyEvent);
    const QKeyCombination copy(Qt::ControlModifier | Qt::AltModifier, Qt::Key_C);
    m_events->setActionKeys({copy, QKeyCombination(Qt::MetaModifier, Qt::Key_F7)});
    QDBusInterface accelerators(u"org.kde.kglobalaccel"_s, u"/kglobalaccel"_s, u"org.kde.KGlobalAccel"_s);
    // The desktop knows them as taken.
    const auto isFree = [&](QKeyCombination key) {
        return QDBusReply<bool>(
                   accelerators.call(u"isGlobalShortcutAvailable"_s, key.toCombined(), u"test"_s))
            .value();
    };
    QTRY_VERIFY_WITH_TIMEOUT(!isFree(copy), Patience);
    QTRY_VERIFY_WITH_TIMEOUT(!isFree(QKeyCombination(Qt::MetaModifier, Qt::Key_F7)), Patience);
    // As a press does, until the program listens as well.
    QDBusInterface component(u"org.kde.kglobalaccel"_s, u"/component/lumen_desk"_s,
                             u"org.kde.kglobalaccel.Component"_s);
    QTRY_VERIFY_WITH_TIMEOUT(component.call(u"invokeShortcut"_s, u"Ctrl+Alt+C"_s).type() ==
                                     QDBusMessage::ReplyMessage &&
                                 !handled.isEmpty(),
                             Patience);
    QCOMPARE(handled.first(), copy);
    QCOMPARE(pressed.first()[0].value<Qt::KeyboardModifiers>(), Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(pressed.first()[1].value<Qt::Key>(), Qt::Key_C);
}

void tst_kwin::keysOfOthersAreNot()
{
    QDBusInterface accelerators(u"org.kde.kglobalaccel"_s, u"/kglobalaccel"_s, u"org.kde.KGlobalAccel"_s);
    const int key = QKeyCombination(Qt::ControlModifier, Qt::Key_F9).toCombined();
    const QStringList others{u"others"_s, u"theirs"_s, u"Others"_s, u"Theirs"_s};
    accelerators.call(u"doRegister"_s, others);
    accelerators.call(u"setShortcut"_s, others, QVariant::fromValue(QList<int>{key}), 6U);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"keeps Ctrl\\+F9 for another program"_s));
    const QKeyCombination taken(Qt::ControlModifier, Qt::Key_F9);
    const QKeyCombination free(Qt::MetaModifier | Qt::ShiftModifier, Qt::Key_F11);
    const auto isFree = [&] {
        return QDBusReply<bool>(
                   accelerators.call(u"isGlobalShortcutAvailable"_s, free.toCombined(), u"test"_s))
            .value();
    };
    QVERIFY(isFree());
    m_events->setActionKeys({taken});
    m_events->setActionKeys({taken, free});
    const auto owner = [&] {
        const QDBusMessage reply = accelerators.call(u"action"_s, key);
        return reply.arguments().value(0).toStringList().value(0);
    };
    QTRY_COMPARE_WITH_TIMEOUT(owner(), u"others"_s, Patience);
    // Once the second key is set the first one has been answered.
    QTRY_VERIFY_WITH_TIMEOUT(!isFree(), Patience);
    QCoreApplication::processEvents();
    m_events->setActionKeys({});
    QCOMPARE(owner(), u"others"_s);
}

void tst_kwin::takenBackKeysAreFree()
{
    QDBusInterface accelerators(u"org.kde.kglobalaccel"_s, u"/kglobalaccel"_s, u"org.kde.KGlobalAccel"_s);
    const QKeyCombination key(Qt::ShiftModifier, Qt::Key_F10);
    const auto isFree = [&] {
        return QDBusReply<bool>(
                   accelerators.call(u"isGlobalShortcutAvailable"_s, key.toCombined(), u"test"_s))
            .value();
    };
    m_events->setActionKeys({key});
    QTRY_VERIFY_WITH_TIMEOUT(!isFree(), Patience);
    m_events->setActionKeys({});
    QTRY_VERIFY_WITH_TIMEOUT(isFree(), Patience);
}

QTEST_GUILESS_MAIN(tst_kwin)
#include "tst_kwin.moc"
