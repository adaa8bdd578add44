// SPDX-License-Identifier: Apache-2.0
#include "LogCount.h"
#include "PlasmaSession.h"
#include "services/wayland/PortalKeys.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using services::wayland::PortalKeys;

namespace {

bool isOnBus(const QString& name)
{
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(name);
}

/// A program of the system's libexec folders; empty if it is not there.
QString libexec(const QString& name)
{
    QStringList folders{u"/usr/libexec"_s};
    const QStringList places = QDir(u"/usr/lib"_s).entryList({u"*-linux-gnu*"_s}, QDir::Dirs);
    for (const QString& place : places)
        folders.append({u"/usr/lib/"_s + place + u"/libexec"_s, u"/usr/lib/"_s + place + u"/libexec/kf6"_s});
    for (const QString& folder : std::as_const(folders)) {
        if (QFile::exists(folder + u'/' + name))
            return folder + u'/' + name;
    }
    return {};
}

} // namespace

/// The program's key combinations through a real desktop portal, that of Plasma: presses pass through KWin,
/// its KGlobalAccel, the portal's back end and the portal.
class tst_portal_plasma : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void portalTakesTheCombinations();

private:
    PlasmaSession m_session;
    ServerProcess m_backend;
    ServerProcess m_portal;
};

void tst_portal_plasma::initTestCase()
{
    QString problem = m_session.startBus();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    problem = m_session.startKWin();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    const QString backend = libexec(u"xdg-desktop-portal-kde"_s);
    const QString portal = libexec(u"xdg-desktop-portal"_s);
    QVERIFY2(!backend.isEmpty() && !portal.isEmpty(), "the desktop portal of Plasma is not installed");
    m_backend.environment = PlasmaSession::environment();
    m_backend.environment.insert(u"XDG_CURRENT_DESKTOP"_s, u"KDE"_s);
    m_portal.environment = m_backend.environment;
    m_backend.environment.insert(u"QT_LOGGING_RULES"_s, u"xdp-kde-GlobalShortcuts=true"_s);
    problem = m_backend.start(
        backend, {}, [] { return isOnBus(u"org.freedesktop.impl.portal.desktop.kde"_s); }, Patience);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    problem = m_portal.start(
        portal, {}, [] { return isOnBus(u"org.freedesktop.portal.Desktop"_s); }, Patience);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

void tst_portal_plasma::cleanupTestCase()
{
    m_portal.stop();
    m_backend.stop();
    m_session.stop();
}

void tst_portal_plasma::portalTakesTheCombinations()
{
    const LogCount refusals(u"[LuPlatform]"_s);
    PortalKeys keys(QDBusConnection::sessionBus());
    keys.start();
    keys.setActionKeys({Qt::CTRL | Qt::ALT | Qt::Key_B});
    QTRY_VERIFY_WITH_TIMEOUT(keys.takesActionKeys(), Patience);
    // What has come to the desktop, in its own words.
    const QRegularExpression first(u"shortcuts:.*\"Ctrl\\+Alt\\+B\".*\"CTRL\\+ALT\\+b\""_s);
    QTRY_VERIFY_WITH_TIMEOUT(m_backend.output().contains(first), Patience);
    // Other keys make another session.
    keys.setActionKeys({Qt::CTRL | Qt::ALT | Qt::SHIFT | Qt::Key_F2});
    const QRegularExpression second(u"shortcuts:.*\"CTRL\\+ALT\\+SHIFT\\+F2\""_s);
    QTRY_VERIFY_WITH_TIMEOUT(m_backend.output().contains(second), Patience);
    QCOMPARE(refusals.count(), 0);
    keys.stop();
}

QTEST_GUILESS_MAIN(tst_portal_plasma)
#include "tst_portal_plasma.moc"
