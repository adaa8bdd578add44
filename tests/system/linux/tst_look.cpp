// SPDX-License-Identifier: Apache-2.0
#include "MockService.h"
#include "PrivateBus.h"
#include "services/linux/DesktopLook.h"

#include <QDBusInterface>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using services::DesktopLook;

/// The wishes that a desktop's settings portal tells of.
class tst_look : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void wishesAreReadAtTheStart_data();
    void wishesAreReadAtTheStart();
    void aChangeIsFollowed();
    void aDesktopWithoutThePortalHasNoWishes();

private:
    QString startPortal(const QJsonObject& parameters)
    {
        m_portal = std::make_unique<MockService>();
        return m_portal->start(QStringLiteral(MOCKS "/look.py"), u"org.freedesktop.portal.Desktop"_s,
                               parameters);
    }

    PrivateBus m_bus;
    std::unique_ptr<MockService> m_portal;
};

void tst_look::initTestCase()
{
    QCOMPARE(m_bus.start(), QString());
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_bus.address().toUtf8());
    QVERIFY(QDBusConnection::systemBus().isConnected());
}

void tst_look::cleanup()
{
    m_portal.reset();
    QTRY_VERIFY(
        !QDBusConnection::systemBus().interface()->isServiceRegistered(u"org.freedesktop.portal.Desktop"_s));
}

void tst_look::wishesAreReadAtTheStart_data()
{
    QTest::addColumn<int>("scheme");
    QTest::addColumn<int>("contrast");
    QTest::addColumn<bool>("animations");
    QTest::addColumn<QString>("wished");
    QTest::newRow("no wish") << 0 << 0 << true << QString();
    QTest::newRow("dark, still") << 1 << 0 << false << u"dark"_s;
    QTest::newRow("light, more contrast") << 2 << 1 << true << u"light"_s;
    QTest::newRow("a number of later versions") << 7 << 9 << true << QString();
}

void tst_look::wishesAreReadAtTheStart()
{
    QFETCH(int, scheme);
    QFETCH(int, contrast);
    QFETCH(bool, animations);
    QFETCH(QString, wished);
    QCOMPARE(startPortal({{u"scheme"_s, scheme}, {u"contrast"_s, contrast}, {u"animations"_s, animations}}),
             QString());
    DesktopLook look(QDBusConnection::systemBus());
    QSignalSpy schemes(&look, &DesktopLook::colorSchemeWished);
    QSignalSpy contrasts(&look, &DesktopLook::contrastWished);
    QSignalSpy motions(&look, &DesktopLook::motionWished);
    look.start();
    QTRY_COMPARE(schemes.size(), 1);
    QTRY_COMPARE(motions.size(), 1);
    QTRY_COMPARE(contrasts.size(), 1);
    QCOMPARE(schemes.first().first().toString(), wished);
    QCOMPARE(contrasts.first().first().toBool(), contrast == 1);
    QCOMPARE(motions.first().first().toBool(), !animations);
}

void tst_look::aChangeIsFollowed()
{
    QCOMPARE(startPortal({}), QString());
    DesktopLook look(QDBusConnection::systemBus());
    QSignalSpy schemes(&look, &DesktopLook::colorSchemeWished);
    look.start();
    QTRY_COMPARE(schemes.size(), 1);
    const auto change = [](const QString& key, uint value) {
        QDBusInterface portal(u"org.freedesktop.portal.Desktop"_s, u"/org/freedesktop/portal/desktop"_s,
                              u"org.freedesktop.portal.Settings"_s, QDBusConnection::systemBus());
        return portal
            .call(u"Change"_s, u"org.freedesktop.appearance"_s, key,
                  QVariant::fromValue(QDBusVariant(QVariant(value))))
            .errorMessage();
    };
    QCOMPARE(change(u"color-scheme"_s, 1), QString());
    QTRY_COMPARE(schemes.size(), 2);
    QCOMPARE(schemes.last().first().toString(), u"dark"_s);
    QCOMPARE(change(u"accent-color"_s, 1), QString());
    QCOMPARE(change(u"color-scheme"_s, 2), QString());
    QTRY_COMPARE(schemes.size(), 3);
    QCOMPARE(schemes.last().first().toString(), u"light"_s);
}

void tst_look::aDesktopWithoutThePortalHasNoWishes()
{
    DesktopLook look(QDBusConnection::systemBus());
    QSignalSpy schemes(&look, &DesktopLook::colorSchemeWished);
    look.start();
    // The bus answers that nobody is there; a question of our own behind it comes back after that answer.
    QVERIFY(
        !QDBusConnection::systemBus().interface()->isServiceRegistered(u"org.freedesktop.portal.Desktop"_s));
    QCoreApplication::processEvents();
    QCOMPARE(schemes.size(), 0);
}

QTEST_GUILESS_MAIN(tst_look)
#include "tst_look.moc"
