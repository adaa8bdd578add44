// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuPlatformNotifications.h>

#include "KWinServer.h"
#include "PrivateBus.h"
#include "services/wayland/KWinEvents.h"

#include <QDBusInterface>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using services::wayland::KWinEvents;

namespace {

/// An application of its own process.
class Application
{
public:
    QString start()
    {
        process.environment = QProcessEnvironment::systemEnvironment();
        process.environment.insert(u"WAYLAND_DISPLAY"_s, KWinServer::display());
        process.environment.insert(u"QT_QPA_PLATFORM"_s, u"wayland"_s);
        // The id is told once the window has a size.
        return process.start(QStringLiteral(WINDOW), {}, [this] { return process.output().contains(u'x'); });
    }
    unsigned long pid() const { return static_cast<unsigned long>(process.processId()); }
    QString lastSize() { return process.output().trimmed().section(u'\n', -1); }

    ServerProcess process;
};

} // namespace

/// Windows and key combinations of a Plasma session: KWin without a screen, and applications on it.
class tst_kwin : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.lumen_desk.Test")

public Q_SLOTS:
    /// Called by the test's own script in KWin.
    Q_SCRIPTABLE void geometry(const QString& text) { m_geometry = text; }

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void sessionWithoutKWinHasNone();
    void foregroundIsTold();
    void nothingIsToldAfterTheEnd();
    void windowIsPlaced();
    void maximisedWindowIsPlaced();
    void ownKeysArePressed();
    void keysOfOthersAreNot();
    void takenBackKeysAreFree();

private:
    /// What KWin itself says of a process's window.
    QString placeOf(unsigned long pid, const QString& before = {});

    QTemporaryDir m_home;
    PrivateBus m_bus;
    KWinServer m_server;
    std::shared_ptr<KWinEvents> m_events;
    QString m_geometry;
    int m_scripts = 0;
};

void tst_kwin::initTestCase()
{
    for (const char* const variable : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        qputenv(variable, m_home.path().toLocal8Bit());
    qunsetenv("WAYLAND_DISPLAY");
    qunsetenv("DISPLAY");
    QString problem = m_bus.start();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.address().toUtf8());
    sessionWithoutKWinHasNone();
    problem = m_server.start(m_home.path());
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    QDBusConnection::sessionBus().registerObject(u"/test"_s, this, QDBusConnection::ExportScriptableSlots);
    m_events = KWinEvents::make(QDBusConnection::sessionBus());
    QVERIFY(m_events);
}

void tst_kwin::cleanupTestCase()
{
    m_events.reset();
    m_server.stop();
}

void tst_kwin::sessionWithoutKWinHasNone()
{
    if (!m_events)
        QVERIFY(!KWinEvents::make(QDBusConnection::sessionBus()));
}

QString tst_kwin::placeOf(unsigned long pid, const QString& before)
{
    const QString name = u"test-%1"_s.arg(++m_scripts);
    QFile file(m_home.filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    file.write(uR"(var all = workspace.windowList ? workspace.windowList() : workspace.clientList();
for (var i = 0; i < all.length; ++i) {
    if (all[i].pid == %1) {
        %2
        var g = all[i].frameGeometry;
        callDBus("%3", "/test", "org.lumen_desk.Test", "geometry", g.x + "," + g.y + " " + g.width + "x" + g.height);
    }
})"_s.arg(QString::number(pid), before, QDBusConnection::sessionBus().baseService())
                   .toUtf8());
    file.close();
    m_geometry.clear();
    QDBusInterface scripting(u"org.kde.KWin"_s, u"/Scripting"_s, u"org.kde.kwin.Scripting"_s);
    const QDBusReply<int> id = scripting.call(u"loadScript"_s, file.fileName(), name);
    for (const QString& path : {u"/Scripting/Script%1"_s.arg(id.value()), u"/%1"_s.arg(id.value())}) {
        QDBusInterface script(u"org.kde.KWin"_s, path, u"org.kde.kwin.Script"_s);
        if (script.call(u"run"_s).type() == QDBusMessage::ReplyMessage)
            break;
    }
    const bool told = QTest::qWaitFor([this] { return !m_geometry.isEmpty(); }, 1000);
    scripting.call(u"unloadScript"_s, name);
    return told ? m_geometry : u"nothing"_s;
}

void tst_kwin::foregroundIsTold()
{
    QSignalSpy active(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeAppChanged);
    m_events->start();
    m_events->start();
    Application first;
    QCOMPARE(first.start(), QString());
    QTRY_VERIFY(!active.isEmpty() && active.last()[0].value<unsigned long>() == first.pid());
    Application second;
    QCOMPARE(second.start(), QString());
    QTRY_COMPARE(active.last()[0].value<unsigned long>(), second.pid());
    second.process.stop();
    QTRY_COMPARE(active.last()[0].value<unsigned long>(), first.pid());
}

void tst_kwin::nothingIsToldAfterTheEnd()
{
    m_events->start();
    m_events->stop();
    QSignalSpy active(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeAppChanged);
    Application application;
    QCOMPARE(application.start(), QString());
    QTRY_VERIFY_WITH_TIMEOUT(placeOf(application.pid()) != u"nothing"_s,
                             20'000); // KWin has dealt with the window
    QVERIFY(active.isEmpty());
}

void tst_kwin::windowIsPlaced()
{
    Application application;
    QCOMPARE(application.start(), QString());
    QTRY_VERIFY_WITH_TIMEOUT(placeOf(application.pid()) != u"nothing"_s, 20'000);
    m_events->setGeometry(application.pid(), QRectF(100, 120, 500, 400));
    QTRY_COMPARE(placeOf(application.pid()), u"100,120 500x400"_s);
    // On the second output.
    m_events->setGeometry(application.pid(), QRectF(1124, 50, 320, 240));
    QTRY_COMPARE(placeOf(application.pid()), u"1124,50 320x240"_s);
    m_events->setGeometry(999'999'999, QRectF(0, 0, 10, 10)); // nobody's
    QCOMPARE(placeOf(application.pid()), u"1124,50 320x240"_s);
}

void tst_kwin::maximisedWindowIsPlaced()
{
    Application application;
    QCOMPARE(application.start(), QString());
    QTRY_VERIFY_WITH_TIMEOUT(placeOf(application.pid(), u"all[i].setMaximize(true, true);"_s) != u"nothing"_s,
                             20'000);
    QTRY_COMPARE(placeOf(application.pid()), u"0,0 1024x768"_s);
    m_events->setGeometry(application.pid(), QRectF(10, 20, 500, 400));
    QTRY_COMPARE(placeOf(application.pid()), u"10,20 500x400"_s);
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
    QTRY_VERIFY(!isFree(copy));
    QTRY_VERIFY(!isFree(QKeyCombination(Qt::MetaModifier, Qt::Key_F7)));
    // As a press does, until the program listens as well.
    QDBusInterface component(u"org.kde.kglobalaccel"_s, u"/component/lumen_desk"_s,
                             u"org.kde.kglobalaccel.Component"_s);
    QTRY_VERIFY(component.call(u"invokeShortcut"_s, u"Ctrl+Alt+C"_s).type() == QDBusMessage::ReplyMessage &&
                !handled.isEmpty());
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
    QTRY_COMPARE(owner(), u"others"_s);
    // Once the second key is set the first one has been answered.
    QTRY_VERIFY(!isFree());
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
    QTRY_VERIFY(!isFree());
    m_events->setActionKeys({});
    QTRY_VERIFY(isFree());
}

QTEST_GUILESS_MAIN(tst_kwin)
#include "tst_kwin.moc"
