// SPDX-License-Identifier: Apache-2.0
#include "Client.h"

#include <LuShared/LuPlatform.h>
#include <LuShared/LuPlatformNotifications.h>
#include <lushared/services/ServiceRegistry.h>
#include <services/api/DesktopEvents.h>
#include <services/api/PointerService.h>
#include <services/x11/KeyRepeats.h>
#include <services/x11/X11Services.h>

#include <QElapsedTimer>
#include <QKeySequence>

#include <thread>

using namespace Qt::StringLiterals;

namespace {

/// Key codes of the server's keyboard, those of evdev plus 8.
enum Code {
    Ctrl = 37,
    Shift = 50,
    Alt = 64,
    Super = 133,
    CapsLock = 66,
    NumLock = 77,
    KeyA = 38,
    KeyC = 54,
    KeyV = 55,
    KeyB = 56,
    KeyN = 57,
    Digit1 = 10,
    F5 = 71,
    Up = 111,
    Space = 65
};

constexpr int ControlState = 4;

} // namespace

/// Keys on a real X server while another program has the focus.
class TestDesktopKeys : public QObject
{
    Q_OBJECT

public:
    explicit TestDesktopKeys(XServer& server) : m_server(server) {}

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void keysOfAnotherProgramAreHeard();
    void modifiersAlone();
    void heldKeysRepeat();
    void shiftedDigitIsTheDigit();
    void handlerComesFirst();
    void actionKeysAreKept();
    void actionKeysAreKeptWithLocksOn();
    void actionKeysCanBeGivenBack();
    void layouts_data();
    void layouts();
    void copyAndPaste_data();
    void copyAndPaste();
    void nothingIsHeardOutsideOfStartAndStop();
    void withoutRecordTheActionKeysStillCome();
    void withoutXtestNothingIsTyped();
    void pointerAtTheEdge();
    void repeats();

private:
    QString take()
    {
        const QString all = m_heard.join(u' ');
        m_heard.clear();
        return all;
    }
    bool use(const QString& layout)
    {
        return std::system(qPrintable(u"setxkbmap -rules evdev -model pc105 -layout %1"_s.arg(layout))) == 0;
    }
    void install(services::ServiceSet* set);
    // With Ctrl, and waits until both keys have been heard.
    void press(int code)
    {
        m_heard.clear();
        m_server.key(Ctrl, true);
        m_server.tap(code);
        m_server.key(Ctrl, false);
        QTRY_COMPARE(m_heard.size(), 2);
    }

    XServer& m_server;
    services::ServiceSet m_set;
    Client m_client;
    QStringList m_heard; ///< "Ctrl+C", with "*" for a repetition.
    QStringList m_order;
};

void TestDesktopKeys::install(services::ServiceSet* set)
{
    QVERIFY(services::x11::addServices(set));
    services::Registry::install(*set);
    set->events->setKeyHandler([this](Qt::KeyboardModifiers, Qt::Key, bool) {
        m_order.append(u"handler"_s);
        return true;
    });
}

void TestDesktopKeys::initTestCase()
{
    QVERIFY(use(u"us"_s));
    QVERIFY(m_client.start(u"typist"_s, QRect(100, 100, 300, 200)));
    // Without a window manager nobody else gives the focus.
    QCOMPARE(std::system(qPrintable(u"xdotool windowfocus --sync %1"_s.arg(m_client.window()))), 0);
    install(&m_set);
    connect(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeKeyEvent, this,
            [this](Qt::KeyboardModifiers modifiers, Qt::Key key, bool repeated) {
                m_order.append(u"signal"_s);
                QStringList parts;
                if (modifiers & Qt::ControlModifier)
                    parts.append(u"Ctrl"_s);
                if (modifiers & Qt::AltModifier)
                    parts.append(u"Alt"_s);
                if (modifiers & Qt::ShiftModifier)
                    parts.append(u"Shift"_s);
                if (modifiers & Qt::MetaModifier)
                    parts.append(u"Meta"_s);
                if (key != Qt::Key_unknown)
                    parts.append(QKeySequence(key).toString(QKeySequence::PortableText));
                m_heard.append(parts.join(u'+') + (repeated ? u"*"_s : QString()));
            });
    m_set.events->start();
    // The recording has begun on its own thread.
    QTRY_VERIFY_WITH_TIMEOUT((m_server.tap(KeyN), !m_heard.isEmpty()), 30'000);
}

void TestDesktopKeys::init()
{
    // Whatever was typed before has been heard.
    m_heard.clear();
    m_server.tap(F5);
    QTRY_COMPARE(m_heard.count(u"F5"_s), 1);
    QTRY_COMPARE(m_client.keys().filter(u"release %1 "_s.arg(F5)).size(), 1);
    m_client.forget();
    m_heard.clear();
    m_order.clear();
}

void TestDesktopKeys::cleanup()
{
    m_client.forget();
}

void TestDesktopKeys::cleanupTestCase()
{
    services::Registry::install({});
    m_set = {};
}

void TestDesktopKeys::keysOfAnotherProgramAreHeard()
{
    m_server.key(Ctrl, true);
    m_server.key(Alt, true);
    m_server.tap(KeyB);
    m_server.key(Alt, false);
    m_server.tap(Up);
    m_server.key(Ctrl, false);
    m_server.tap(KeyA);
    QTRY_COMPARE(m_heard.size(), 5);
    QCOMPARE(take(), u"Ctrl Ctrl+Alt Ctrl+Alt+B Ctrl+Up A"_s);
    // The other program got everything, too.
    QTRY_COMPARE(m_client.keys().size(), 10);
}

void TestDesktopKeys::modifiersAlone()
{
    m_server.key(Shift, true);
    m_server.key(Super, true);
    m_server.key(Super, false);
    m_server.key(Shift, false);
    QTRY_COMPARE(m_heard.size(), 2);
    QCOMPARE(take(), u"Shift Shift+Meta"_s);
}

void TestDesktopKeys::heldKeysRepeat()
{
    QCOMPARE(std::system("xset r on r rate 200 25"), 0);
    m_server.key(Ctrl, true);
    m_server.key(KeyB, true);
    QTRY_VERIFY(m_heard.size() >= 5);
    m_server.key(KeyB, false);
    m_server.key(Ctrl, false);
    QCOMPARE(std::system("xset r off"), 0);
    m_server.tap(KeyA);
    QTRY_COMPARE(m_heard.last(), u"A"_s);
    QCOMPARE(m_heard.first(), u"Ctrl"_s);
    QCOMPARE(m_heard.at(1), u"Ctrl+B"_s);
    for (qsizetype i = 2; i < m_heard.size() - 1; ++i)
        QCOMPARE(m_heard.at(i), u"Ctrl+B*"_s);
    // Pressed again it begins anew.
    m_heard.clear();
    m_server.tap(KeyB);
    QTRY_COMPARE(m_heard, QStringList{u"B"_s});
}

void TestDesktopKeys::shiftedDigitIsTheDigit()
{
    m_server.key(Shift, true);
    m_server.tap(Digit1);
    m_server.key(Shift, false);
    m_server.tap(Space);
    QTRY_COMPARE(m_heard.size(), 3);
    QCOMPARE(take(), u"Shift Shift+1 Space"_s);
}

void TestDesktopKeys::handlerComesFirst()
{
    m_server.tap(KeyA);
    QTRY_COMPARE(m_order, QStringList({u"handler"_s, u"signal"_s}));
}

void TestDesktopKeys::actionKeysAreKept()
{
    m_set.events->setActionKeys({Qt::CTRL | Qt::ALT | Qt::Key_B});
    m_server.key(Ctrl, true);
    m_server.key(Alt, true);
    m_server.tap(KeyB);
    m_server.tap(KeyN);
    m_server.key(Alt, false);
    m_server.tap(KeyB); // Ctrl+B is another combination
    m_server.key(Ctrl, false);
    QTRY_COMPARE(m_heard.size(), 5);
    QCOMPARE(take(), u"Ctrl Ctrl+Alt Ctrl+Alt+B Ctrl+Alt+N Ctrl+B"_s);
    QTRY_COMPARE(m_client.keys().filter(u"release %1 "_s.arg(Ctrl)).size(), 1);
    QCOMPARE(m_client.keys().filter(u"press %1 "_s.arg(KeyN)).size(), 1);
    QCOMPARE(m_client.keys().filter(u"press %1 "_s.arg(KeyB)), QStringList{u"press %1 4"_s.arg(KeyB)});
    m_set.events->setActionKeys({});
}

void TestDesktopKeys::actionKeysAreKeptWithLocksOn()
{
    m_set.events->setActionKeys({Qt::CTRL | Qt::Key_B});
    m_server.tap(NumLock);
    m_server.tap(CapsLock);
    m_server.key(Ctrl, true);
    m_server.tap(KeyB);
    m_server.key(Ctrl, false);
    m_server.tap(NumLock);
    m_server.tap(CapsLock);
    QTRY_VERIFY(m_heard.contains(u"Ctrl+B"_s));
    QTRY_COMPARE(m_client.keys().filter(u"release %1 "_s.arg(CapsLock)).size(), 2);
    QCOMPARE(m_client.keys().filter(u"press %1 "_s.arg(KeyB)), QStringList());
    m_set.events->setActionKeys({});
}

void TestDesktopKeys::actionKeysCanBeGivenBack()
{
    m_set.events->setActionKeys({Qt::CTRL | Qt::Key_B});
    m_set.events->setActionKeys({});
    m_server.key(Ctrl, true);
    m_server.tap(KeyB);
    m_server.key(Ctrl, false);
    QTRY_COMPARE(m_client.keys().filter(u"press %1 "_s.arg(KeyB)).size(), 1);
    // A key without a modifier is never taken from the other program.
    m_set.events->setActionKeys({Qt::Key_B});
    m_server.tap(KeyB);
    QTRY_COMPARE(m_client.keys().filter(u"press %1 "_s.arg(KeyB)).size(), 2);
    m_set.events->setActionKeys({});
}

void TestDesktopKeys::layouts_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("heard");
    QTest::newRow("German") << u"de"_s << 29 << u"Ctrl Ctrl+Z"_s;
    QTest::newRow("French digits") << u"fr"_s << int(Digit1) << u"Ctrl Ctrl+1"_s;
    QTest::newRow("Russian beside Latin") << u"us,ru"_s << int(KeyC) << u"Ctrl Ctrl+C"_s;
}

void TestDesktopKeys::layouts()
{
    QFETCH(QString, layout);
    QFETCH(int, code);
    QFETCH(QString, heard);
    QVERIFY(use(layout));
    // The change of the keyboard comes as an event.
    QTRY_VERIFY_WITH_TIMEOUT((press(code), m_heard.join(u' ') == heard), 20'000);
    QVERIFY(use(u"us"_s));
    m_heard.clear();
    QTRY_VERIFY_WITH_TIMEOUT((m_server.tap(29), m_heard.contains(u"Y"_s)), 20'000);
    QTRY_VERIFY(m_client.keys().size() >= 6);
}

void TestDesktopKeys::copyAndPaste_data()
{
    QTest::addColumn<bool>("paste");
    QTest::addColumn<QList<int>>("held");
    QTest::newRow("copy") << false << QList<int>();
    QTest::newRow("copy with Ctrl and Alt held") << false << QList<int>{Ctrl, Alt};
    QTest::newRow("copy with Shift held") << false << QList<int>{Shift};
    QTest::newRow("paste") << true << QList<int>();
    QTest::newRow("paste with Super held") << true << QList<int>{Super};
}

void TestDesktopKeys::copyAndPaste()
{
    QFETCH(bool, paste);
    QFETCH(QList<int>, held);
    for (const int code : held)
        m_server.key(code, true);
    QTRY_COMPARE(m_client.keys().size(), held.size());
    m_client.forget();
    if (paste) {
        std::thread queue([] { LuPlatform::simulatePaste(); });
        queue.join();
    } else {
        LuPlatform::simulateCopy();
    }
    const int code = paste ? KeyV : KeyC;
    QTRY_COMPARE(m_client.keys().filter(u"release %1 "_s.arg(code)).size(), 1);
    QCOMPARE(m_client.keys().filter(u"press %1 "_s.arg(code)),
             QStringList{u"press %1 %2"_s.arg(code).arg(ControlState)});
    // What was held is held again: the next key comes with it.
    m_client.forget();
    m_server.tap(KeyN);
    QTRY_COMPARE(m_client.keys().filter(u"press %1 "_s.arg(KeyN)).size(), 1);
    const int state = m_client.keys().filter(u"press %1 "_s.arg(KeyN)).first().section(u' ', 2).toInt();
    QCOMPARE(bool(state & 4), held.contains(Ctrl));
    QCOMPARE(bool(state & 8), held.contains(Alt));
    QCOMPARE(bool(state & 1), held.contains(Shift));
    QCOMPARE(bool(state & 64), held.contains(Super));
    for (const int each : held)
        m_server.key(each, false);
    m_client.forget();
    m_server.tap(KeyN);
    QTRY_COMPARE(m_client.keys().filter(u"press %1 0"_s.arg(KeyN)).size(), 1);
}

void TestDesktopKeys::nothingIsHeardOutsideOfStartAndStop()
{
    m_set.events->stop();
    m_server.tap(KeyA);
    m_set.events->start();
    QTRY_VERIFY_WITH_TIMEOUT((m_server.tap(KeyN), m_heard.contains(u"N"_s)), 30'000);
    QVERIFY(!m_heard.contains(u"A"_s));
    // Started twice, still heard once: what came of the first key is there when the second one's has come.
    m_set.events->start();
    m_server.tap(KeyB);
    m_server.tap(KeyC);
    QTRY_VERIFY(m_heard.contains(u"C"_s));
    QCOMPARE(m_heard.count(u"B"_s), 1);
}

void TestDesktopKeys::withoutRecordTheActionKeysStillCome()
{
    m_set.events->stop();
    XServer bare;
    const QByteArray display = qgetenv("DISPLAY");
    QVERIFY2(bare.start({{"-extension", "RECORD"}}), bare.error().c_str());
    QVERIFY(use(u"us"_s));
    {
        services::ServiceSet set;
        install(&set);
        set.events->setActionKeys({Qt::CTRL | Qt::Key_B});
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"lets nobody record keys"_s));
        set.events->start();
        bare.key(Ctrl, true);
        bare.tap(KeyN);
        bare.tap(KeyB);
        bare.key(Ctrl, false);
        QTRY_COMPARE(m_heard, QStringList{u"Ctrl+B"_s});
        services::Registry::install(m_set);
    }
    qputenv("DISPLAY", display);
    m_set.events->start();
    m_heard.clear();
    QTRY_VERIFY_WITH_TIMEOUT((m_server.tap(KeyN), m_heard.contains(u"N"_s)), 30'000);
}

void TestDesktopKeys::withoutXtestNothingIsTyped()
{
    XServer bare;
    const QByteArray display = qgetenv("DISPLAY");
    QVERIFY2(bare.start({{"-extension", "XTEST"}}), bare.error().c_str());
    {
        services::ServiceSet set;
        install(&set);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"copy and paste keys cannot be sent"_s));
        LuPlatform::simulateCopy();
        // A server that goes takes nothing else along. It has no RECORD without XTEST either.
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"lets nobody record keys"_s));
        set.events->start();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"the connection to the X server is lost"_s));
        bare.stop();
        QCoreApplication::processEvents();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"copy and paste keys cannot be sent"_s));
        LuPlatform::simulatePaste();
        services::Registry::install(m_set);
    }
    qputenv("DISPLAY", display);
}

void TestDesktopKeys::pointerAtTheEdge()
{
    m_server.moveTo(300, 400);
    QList<QPoint> places;
    QList<QPointF> motions;
    QVERIFY(m_set.pointer->watch([&](QPoint place, QPointF motion) {
        places.append(place);
        motions.append(motion);
    }));
    QCOMPARE(m_set.pointer->position(), QPoint(300, 400));
    // By the server's own measure, without its acceleration.
    QElapsedTimer elapsed;
    for (elapsed.start(); motions.isEmpty() && elapsed.elapsed() < PatienceMs;) {
        m_server.moveBy(3, 2);
        (void)QTest::qWaitFor([&] { return !motions.isEmpty(); }, 500);
    }
    QVERIFY(!motions.isEmpty());
    QCOMPARE(motions.first(), QPointF(3, 2));
    m_set.pointer->moveTo(QPoint(0, 500));
    QTRY_COMPARE(m_set.pointer->position(), QPoint(0, 500));
    m_server.moveBy(-9, 0);
    QTRY_COMPARE(motions.last(), QPointF(-9, 0));
    QCOMPARE(places.last(), QPoint(0, 500));
    QVERIFY(m_set.pointer->watch({}));
    motions.clear();
    m_server.moveBy(5, 5);
    m_server.tap(KeyA);
    QTRY_VERIFY(m_heard.contains(u"A"_s));
    QVERIFY(motions.isEmpty());
}

void TestDesktopKeys::repeats()
{
    services::x11::KeyRepeats keys;
    QCOMPARE(keys.press(38, 1000), std::optional<bool>(false));
    QCOMPARE(keys.press(38, 1000), std::optional<bool>());
    QCOMPARE(keys.press(38, 1200), std::optional<bool>(true));
    QCOMPARE(keys.press(39, 1200), std::optional<bool>(false));
    keys.release(38);
    keys.release(38); // told twice
    QCOMPARE(keys.press(38, 1300), std::optional<bool>(false));
    // The release was lost.
    QCOMPARE(keys.press(38, 60000), std::optional<bool>(false));
    // The server's time has wrapped.
    QCOMPARE(keys.press(39, 0xffffffff), std::optional<bool>(false));
    QCOMPARE(keys.press(39, 20), std::optional<bool>(true));
}

DESKTOP_MAIN(TestDesktopKeys)
#include "tst_desktop_keys.moc"
