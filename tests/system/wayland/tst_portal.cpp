// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuPlatformNotifications.h>

#include "LogCount.h"
#include "MockService.h"
#include "PrivateBus.h"
#include "services/wayland/PortalKeys.h"

#include <QDBusInterface>
#include <QDBusReply>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using services::wayland::PortalKeys;

namespace {

/// For whatever a server does, in ms.
constexpr int Patience = 60'000;

const QString Portal = u"org.freedesktop.portal.Desktop"_s;

QDBusConnection bus()
{
    return QDBusConnection::systemBus();
}

QStringList bound()
{
    QDBusInterface mock(Portal, u"/org/freedesktop/portal/desktop"_s, u"org.freedesktop.DBus.Mock"_s, bus());
    return QDBusReply<QStringList>(mock.call(u"Bound"_s)).value();
}

void press(const QString& shortcut)
{
    QDBusInterface mock(Portal, u"/org/freedesktop/portal/desktop"_s, u"org.freedesktop.DBus.Mock"_s, bus());
    mock.call(u"Press"_s, shortcut);
}

} // namespace

/// The program's key combinations through a desktop portal, of which the test plays the desktop.
class tst_portal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void cleanup();
    void sessionWithoutAPortalHasNone();
    void portalWithoutGlobalKeysHasNone();
    void slowPortalIsNotWaitedFor();
    void triggersAreWrittenAsThePortalReadsThem_data();
    void triggersAreWrittenAsThePortalReadsThem();
    void keysAreBoundOnceStarted();
    void pressReachesTheHandlerAndTheSignal();
    void otherKeysReplaceTheSession();
    void portalThatStartsAnewGetsTheKeysAgain();
    void nothingComesAfterTheEnd();
    void refusalIsToldAndHarmless();

private:
    void serve(const QJsonObject& parameters = {});

    PrivateBus m_bus;
    std::unique_ptr<MockService> m_portal;
};

void tst_portal::initTestCase()
{
    const QString problem = m_bus.start();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_bus.address().toLocal8Bit());
    QVERIFY(bus().isConnected());
}

void tst_portal::cleanupTestCase()
{
    m_bus.stop();
}

void tst_portal::cleanup()
{
    m_portal.reset();
    QTRY_VERIFY_WITH_TIMEOUT(!bus().interface()->isServiceRegistered(Portal), Patience);
}

void tst_portal::serve(const QJsonObject& parameters)
{
    m_portal = std::make_unique<MockService>();
    const QString problem = m_portal->start(QStringLiteral(MOCKS "/portal.py"), Portal, parameters);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void tst_portal::sessionWithoutAPortalHasNone()
{
    PortalKeys keys(bus());
    keys.start();
    keys.setActionKeys({Qt::CTRL | Qt::ALT | Qt::Key_B});
    QVERIFY(!keys.takesActionKeys());
    QVERIFY(!keys.hearsEveryKey());
    QVERIFY(!keys.seesWindows());
}

void tst_portal::portalWithoutGlobalKeysHasNone()
{
    serve({{u"version"_s, 0}});
    const LogCount told(u"[LuPlatform] the desktop portal has no global keys"_s);
    PortalKeys keys(bus());
    bool changed = false;
    keys.setAbilityListener([&] { changed = true; });
    keys.start();
    keys.setActionKeys({Qt::CTRL | Qt::ALT | Qt::Key_B});
    QTRY_COMPARE_WITH_TIMEOUT(told.count(), 1, Patience);
    QVERIFY(!keys.takesActionKeys());
    QVERIFY(!changed);
    QCOMPARE(bound(), QStringList());
}

void tst_portal::slowPortalIsNotWaitedFor()
{
    serve();
    QVERIFY(m_portal->pause(true));
    QElapsedTimer elapsed;
    elapsed.start();
    PortalKeys keys(bus());
    int told = 0;
    keys.setAbilityListener([&] { ++told; });
    keys.start();
    keys.setActionKeys({Qt::CTRL | Qt::ALT | Qt::Key_B});
    QVERIFY(!keys.takesActionKeys());
    // One answer that somebody waited for would have taken the bus's limit of 25 s.
    QVERIFY2(elapsed.elapsed() < 5000, qPrintable(QString::number(elapsed.elapsed())));
    QVERIFY(m_portal->pause(false));
    QTRY_VERIFY_WITH_TIMEOUT(keys.takesActionKeys(), Patience);
    QCOMPARE(told, 1);
    QTRY_COMPARE_WITH_TIMEOUT(bound(), QStringList{u"Ctrl+Alt+B CTRL+ALT+b"_s}, Patience);
}

void tst_portal::triggersAreWrittenAsThePortalReadsThem_data()
{
    QTest::addColumn<int>("keys");
    QTest::addColumn<QString>("text");
    QTest::newRow("letter") << (Qt::CTRL | Qt::ALT | Qt::Key_B).toCombined() << u"CTRL+ALT+b"_s;
    QTest::newRow("all modifiers") << (Qt::CTRL | Qt::ALT | Qt::SHIFT | Qt::META | Qt::Key_F12).toCombined()
                                   << u"CTRL+ALT+SHIFT+LOGO+F12"_s;
    QTest::newRow("arrow") << (Qt::CTRL | Qt::Key_Left).toCombined() << u"CTRL+Left"_s;
    QTest::newRow("digit") << (Qt::ALT | Qt::Key_7).toCombined() << u"ALT+7"_s;
    QTest::newRow("sign") << (Qt::ALT | Qt::Key_Comma).toCombined() << u"ALT+comma"_s;
    QTest::newRow("page") << (Qt::ALT | Qt::Key_PageUp).toCombined() << u"ALT+Prior"_s;
    QTest::newRow("no key") << (Qt::ALT | Qt::Key_unknown).toCombined() << QString();
}

void tst_portal::triggersAreWrittenAsThePortalReadsThem()
{
    QFETCH(int, keys);
    QFETCH(QString, text);
    QCOMPARE(PortalKeys::trigger(QKeyCombination::fromCombined(keys)), text);
}

void tst_portal::keysAreBoundOnceStarted()
{
    serve();
    const auto keys = std::make_unique<PortalKeys>(bus());
    keys->setActionKeys({Qt::CTRL | Qt::ALT | Qt::Key_B, Qt::CTRL | Qt::ALT | Qt::Key_Up});
    QCOMPARE(bound(), QStringList());
    keys->start();
    QTRY_COMPARE_WITH_TIMEOUT(
        bound(), (QStringList{u"Ctrl+Alt+B CTRL+ALT+b"_s, u"Ctrl+Alt+Up CTRL+ALT+Up"_s}), Patience);
}

void tst_portal::pressReachesTheHandlerAndTheSignal()
{
    serve();
    const auto keys = std::make_unique<PortalKeys>(bus());
    QSignalSpy spy(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeKeyEvent);
    QList<QKeyCombination> handled;
    keys->setKeyHandler([&](Qt::KeyboardModifiers modifiers, Qt::Key key, bool repeated) {
        handled.append(QKeyCombination(modifiers, key));
        return !repeated;
    });
    keys->start();
    keys->setActionKeys({Qt::CTRL | Qt::ALT | Qt::Key_B});
    QTRY_COMPARE_WITH_TIMEOUT(bound().size(), 1, Patience);
    press(u"Ctrl+Alt+B"_s);
    QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 1, Patience);
    QCOMPARE(handled, QList<QKeyCombination>{Qt::CTRL | Qt::ALT | Qt::Key_B});
    QCOMPARE(spy[0][1].value<Qt::Key>(), Qt::Key_B);
}

void tst_portal::otherKeysReplaceTheSession()
{
    serve();
    const auto keys = std::make_unique<PortalKeys>(bus());
    keys->start();
    keys->setActionKeys({Qt::CTRL | Qt::ALT | Qt::Key_B});
    QTRY_COMPARE_WITH_TIMEOUT(bound(), QStringList{u"Ctrl+Alt+B CTRL+ALT+b"_s}, Patience);
    keys->setActionKeys({Qt::CTRL | Qt::Key_F2});
    QTRY_COMPARE_WITH_TIMEOUT(bound(), QStringList{u"Ctrl+F2 CTRL+F2"_s}, Patience);
    keys->setActionKeys({});
    QTRY_COMPARE_WITH_TIMEOUT(bound(), QStringList(), Patience);
}

void tst_portal::portalThatStartsAnewGetsTheKeysAgain()
{
    serve();
    PortalKeys keys(bus());
    int told = 0;
    keys.setAbilityListener([&] { ++told; });
    keys.setActionKeys({Qt::CTRL | Qt::ALT | Qt::Key_B});
    keys.start();
    QTRY_COMPARE_WITH_TIMEOUT(bound(), QStringList{u"Ctrl+Alt+B CTRL+ALT+b"_s}, Patience);
    cleanup();
    serve();
    QTRY_COMPARE_WITH_TIMEOUT(bound(), QStringList{u"Ctrl+Alt+B CTRL+ALT+b"_s}, Patience);
    QSignalSpy pressed(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeKeyEvent);
    press(u"Ctrl+Alt+B"_s);
    QTRY_COMPARE_WITH_TIMEOUT(pressed.count(), 1, Patience);
    QCOMPARE(told, 1);
}

void tst_portal::nothingComesAfterTheEnd()
{
    serve();
    const auto keys = std::make_unique<PortalKeys>(bus());
    keys->start();
    keys->setActionKeys({Qt::CTRL | Qt::ALT | Qt::Key_B});
    QTRY_COMPARE_WITH_TIMEOUT(bound().size(), 1, Patience);
    keys->stop();
    QTRY_COMPARE_WITH_TIMEOUT(bound().size(), 0, Patience);
    keys->start();
    QTRY_COMPARE_WITH_TIMEOUT(bound().size(), 1, Patience);
}

void tst_portal::refusalIsToldAndHarmless()
{
    serve({{u"refuse"_s, true}});
    const auto keys = std::make_unique<PortalKeys>(bus());
    const LogCount refusals(u"[LuPlatform] the desktop gave the program no global keys"_s);
    keys->start();
    keys->setActionKeys({Qt::CTRL | Qt::ALT | Qt::Key_B});
    QTRY_COMPARE_WITH_TIMEOUT(refusals.count(), 1, Patience);
    // Other keys ask anew.
    keys->setActionKeys({Qt::CTRL | Qt::ALT | Qt::Key_B, Qt::ALT | Qt::Key_F3});
    QTRY_COMPARE_WITH_TIMEOUT(refusals.count(), 2, Patience);
    QCOMPARE(bound(), QStringList());
}

QTEST_GUILESS_MAIN(tst_portal)
#include "tst_portal.moc"
