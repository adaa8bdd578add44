// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuPlatformNotifications.h>

#include "MockService.h"
#include "PrivateBus.h"
#include "services/wayland/PortalKeys.h"

#include <QDBusInterface>
#include <QDBusReply>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using services::wayland::PortalKeys;

namespace {

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
    void triggersAreWrittenAsThePortalReadsThem_data();
    void triggersAreWrittenAsThePortalReadsThem();
    void keysAreBoundOnceStarted();
    void pressReachesTheHandlerAndTheSignal();
    void otherKeysReplaceTheSession();
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
    QTRY_VERIFY(!bus().interface()->isServiceRegistered(Portal));
}

void tst_portal::serve(const QJsonObject& parameters)
{
    m_portal = std::make_unique<MockService>();
    const QString problem = m_portal->start(QStringLiteral(MOCKS "/portal.py"), Portal, parameters);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void tst_portal::sessionWithoutAPortalHasNone()
{
    QVERIFY(!PortalKeys::make(bus()));
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
    const auto keys = PortalKeys::make(bus());
    QVERIFY(keys);
    keys->setActionKeys({Qt::CTRL | Qt::ALT | Qt::Key_B, Qt::CTRL | Qt::ALT | Qt::Key_Up});
    QCOMPARE(bound(), QStringList());
    keys->start();
    QTRY_COMPARE(bound(), (QStringList{u"Ctrl+Alt+B CTRL+ALT+b"_s, u"Ctrl+Alt+Up CTRL+ALT+Up"_s}));
}

void tst_portal::pressReachesTheHandlerAndTheSignal()
{
    serve();
    const auto keys = PortalKeys::make(bus());
    QVERIFY(keys);
    QSignalSpy spy(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeKeyEvent);
    QList<QKeyCombination> handled;
    keys->setKeyHandler([&](Qt::KeyboardModifiers modifiers, Qt::Key key, bool repeated) {
        handled.append(QKeyCombination(modifiers, key));
        return !repeated;
    });
    keys->start();
    keys->setActionKeys({Qt::CTRL | Qt::ALT | Qt::Key_B});
    QTRY_COMPARE(bound().size(), 1);
    press(u"Ctrl+Alt+B"_s);
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(handled, QList<QKeyCombination>{Qt::CTRL | Qt::ALT | Qt::Key_B});
    QCOMPARE(spy[0][1].value<Qt::Key>(), Qt::Key_B);
}

void tst_portal::otherKeysReplaceTheSession()
{
    serve();
    const auto keys = PortalKeys::make(bus());
    QVERIFY(keys);
    keys->start();
    keys->setActionKeys({Qt::CTRL | Qt::ALT | Qt::Key_B});
    QTRY_COMPARE(bound(), QStringList{u"Ctrl+Alt+B CTRL+ALT+b"_s});
    keys->setActionKeys({Qt::CTRL | Qt::Key_F2});
    QTRY_COMPARE(bound(), QStringList{u"Ctrl+F2 CTRL+F2"_s});
    keys->setActionKeys({});
    QTRY_COMPARE(bound(), QStringList());
}

void tst_portal::nothingComesAfterTheEnd()
{
    serve();
    const auto keys = PortalKeys::make(bus());
    QVERIFY(keys);
    keys->start();
    keys->setActionKeys({Qt::CTRL | Qt::ALT | Qt::Key_B});
    QTRY_COMPARE(bound().size(), 1);
    keys->stop();
    QTRY_COMPARE(bound().size(), 0);
    keys->start();
    QTRY_COMPARE(bound().size(), 1);
}

void tst_portal::refusalIsToldAndHarmless()
{
    serve({{u"refuse"_s, true}});
    const auto keys = PortalKeys::make(bus());
    QVERIFY(keys);
    static int refusals;
    refusals = 0;
    static QtMessageHandler before;
    before =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& text) {
            if (text == u"[LuPlatform] the desktop gave the program no global keys"_s)
                ++refusals;
            else
                before(type, context, text);
        });
    const auto restore = qScopeGuard([] { qInstallMessageHandler(before); });
    keys->start();
    keys->setActionKeys({Qt::CTRL | Qt::ALT | Qt::Key_B});
    QTRY_COMPARE(refusals, 1);
    // Other keys ask anew.
    keys->setActionKeys({Qt::CTRL | Qt::ALT | Qt::Key_B, Qt::ALT | Qt::Key_F3});
    QTRY_COMPARE(refusals, 2);
    QCOMPARE(bound(), QStringList());
}

QTEST_GUILESS_MAIN(tst_portal)
#include "tst_portal.moc"
