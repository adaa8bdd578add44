// SPDX-License-Identifier: Apache-2.0
#include "AccessibleTree.h"
#include "DeskProcess.h"
#include "MockBed.h"

#include "../support/ServerProcess.h"

#include <QRegularExpression>
#include <QTest>

#include <linux/capability.h>
#include <sys/prctl.h>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A search for monitors and the first look at one, with room for a slow machine.
constexpr int LimitMs = 60'000;

std::unique_ptr<sim::Monitor> makeMonitor(const QString& name)
{
    sim::Options options;
    options.strictTiming = true;
    return std::make_unique<sim::Monitor>(*sim::Identity::parse(name), options);
}

/// Lets root be held up by the rights of files, as everybody else is.
void dropFileRights()
{
    for (const int right : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH})
        ::prctl(PR_CAPBSET_DROP, right);
}

} // namespace

/// What a new user meets on a computer with monitors and on one without: the introduction and the
/// demonstration.
class TestWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aNewUserIsIntroducedOnce();
    void aMonitorThatComesLaterIsIntroducedToo();
    void whoeverHasAnotherMonitorIsNotIntroduced();
    void withoutAMonitorADemonstrationIsOffered();
    void troublesAreToldInTheUsersLanguage();

private:
    bool start(const QByteArray& platform);
    /// The display's number stands in a line of its own among the server's complaints.
    QByteArray serverNumber()
    {
        static const QRegularExpression line(u"^(\\d+)\\n"_s, QRegularExpression::MultilineOption);
        return line.match(m_server.output()).captured(1).toLatin1();
    }
    ControlClient& client() { return m_desk->client(); }
    QStringList names(const QString& role) { return namesInTree(client().call(u"ui.tree"_s).result, role); }
    bool isIntroduced();
    bool press(const QString& name)
    {
        return client().call(u"ui.press"_s, {{u"name"_s, name}, {u"role"_s, u"button"_s}}).ok();
    }
    QJsonArray monitors() { return client().call(u"monitors"_s, {}, LimitMs).result.toArray(); }

    std::unique_ptr<sim::Monitor> m_series;
    std::unique_ptr<sim::Monitor> m_other;
    std::unique_ptr<MockBed> m_bed;
    MockBed::Port* m_port = nullptr;
    std::unique_ptr<DeskProcess> m_desk;
    ServerProcess m_server;
    std::unique_ptr<ControlClient> m_demonstration;
};

void TestWindow::init()
{
    m_series = makeMonitor(u"TK30Z@SERIES-1"_s);
    m_other = makeMonitor(u"Alpha27Q@SN-A"_s);
    m_bed = std::make_unique<MockBed>();
    m_port = &m_bed->addPort(4, u"DP-1"_s);
    m_desk = std::make_unique<DeskProcess>();
}

void TestWindow::cleanup()
{
    if (QTest::currentTestFailed())
        qInfo().noquote() << m_desk->errors();
    if (m_demonstration)
        (void)m_demonstration->call(u"quit"_s);
    m_demonstration.reset();
    const int code = m_desk->stop();
    m_desk.reset();
    m_bed.reset();
    qunsetenv("QT_QPA_PLATFORM");
    qunsetenv("DISPLAY");
    QCOMPARE(code, 0);
}

// @param platform "xcb" on a server of the test's own, or "offscreen", where nobody is introduced.
bool TestWindow::start(const QByteArray& platform)
{
    if (platform == "xcb" && !m_server.isRunning()) {
        // The server needs nothing of this computer, and does not begin anew when its only client goes: the
        // program asks whether it is there before it opens its windows.
        m_server.environment.remove(u"LD_PRELOAD"_s);
        const QString problem = m_server.start(u"Xvfb"_s,
                                               {u"-noreset"_s, u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s,
                                                u"1280x900x24"_s, u"-nolisten"_s, u"tcp"_s},
                                               [this] { return !serverNumber().isEmpty(); });
        if (!problem.isEmpty()) {
            qWarning().noquote() << problem;
            return false;
        }
    }
    if (platform == "xcb")
        qputenv("DISPLAY", ":" + serverNumber());
    qputenv("QT_QPA_PLATFORM", platform);
    return m_desk->start({u"--services"_s, u"simulated"_s}, LimitMs);
}

bool TestWindow::isIntroduced()
{
    return names(u"window"_s).contains(u"Welcome to Lumen Desk"_s);
}

void TestWindow::aNewUserIsIntroducedOnce()
{
    m_bed->plug(*m_port, *m_series);
    QVERIFY(start("xcb"));
    QTRY_VERIFY_WITH_TIMEOUT(isIntroduced(), LimitMs);
    QVERIFY(names(u"label"_s).contains(u"BackGlow Auto-dimming"_s));
    QVERIFY(press(u"Next"_s));
    QTRY_VERIFY(names(u"label"_s).contains(u"Night Hours Protection"_s));
    QVERIFY(press(u"Back"_s));
    QTRY_VERIFY(names(u"label"_s).contains(u"BackGlow Auto-dimming"_s));
    QVERIFY(press(u"Next"_s));
    QTRY_VERIFY(names(u"button"_s).contains(u"Done"_s));
    QVERIFY(press(u"Done"_s));
    QTRY_VERIFY(!isIntroduced());
    QCOMPARE(client().call(u"ui.warnings"_s).result.toArray(), QJsonArray());
    // The window opens again, and the program starts again: the user knows it by now.
    QVERIFY(client().call(u"ui.hide"_s).ok());
    QVERIFY(client().call(u"ui.show"_s).ok());
    QVERIFY(client().call(u"idle"_s, {}, LimitMs).ok());
    QVERIFY(!isIntroduced());
    QCOMPARE(m_desk->stop(), 0);
    QVERIFY(start("xcb"));
    QTRY_COMPARE_WITH_TIMEOUT(monitors().size(), 1, LimitMs);
    QTRY_VERIFY_WITH_TIMEOUT(names(u"button"_s).contains(u"Auto Pivot"_s), LimitMs);
    QVERIFY(client().call(u"idle"_s, {}, LimitMs).ok());
    QVERIFY(!isIntroduced());
}

void TestWindow::aMonitorThatComesLaterIsIntroducedToo()
{
    QVERIFY(start("xcb"));
    QCOMPARE(monitors(), QJsonArray());
    QTRY_VERIFY(names(u"label"_s).contains(u"No supported monitor found"_s));
    QVERIFY(!isIntroduced());
    m_bed->plug(*m_port, *m_series);
    m_bed->sendEvent();
    QTRY_VERIFY_WITH_TIMEOUT(isIntroduced(), LimitMs);
    // Closed by the window's own frame it counts as seen.
    QVERIFY(client().call(u"ui.close"_s, {{u"section"_s, u"walkthrough"_s}}).ok());
    QTRY_VERIFY(!isIntroduced());
    QCOMPARE(client().call(u"settings"_s).result[u"application"_s][u"introductionSeen"_s], QJsonValue(true));
}

void TestWindow::whoeverHasAnotherMonitorIsNotIntroduced()
{
    m_bed->plug(*m_port, *m_other);
    QVERIFY(start("xcb"));
    QTRY_COMPARE_WITH_TIMEOUT(monitors().size(), 1, LimitMs);
    QTRY_VERIFY_WITH_TIMEOUT(names(u"comboBox"_s).contains(u"Monitor"_s), LimitMs);
    QVERIFY(client().call(u"idle"_s, {}, LimitMs).ok());
    QVERIFY(!isIntroduced());
}

void TestWindow::withoutAMonitorADemonstrationIsOffered()
{
    QVERIFY(start("offscreen"));
    QCOMPARE(monitors(), QJsonArray());
    QTRY_VERIFY(names(u"label"_s).contains(u"No supported monitor found"_s));
    QVERIFY(press(u"Look again"_s));
    QTRY_VERIFY_WITH_TIMEOUT(names(u"button"_s).contains(u"Try it with a simulated monitor"_s), LimitMs);
    QVERIFY(press(u"Try it with a simulated monitor"_s));
    // A program of its own, with a monitor, a window and settings that have nothing to do with the real ones.
    const QString socket = m_desk->filePath(u"data/demonstration/control.sock"_s);
    QTRY_VERIFY_WITH_TIMEOUT(
        (m_demonstration = std::make_unique<ControlClient>(), m_demonstration->connectTo(socket, 50)),
        LimitMs);
    const QJsonArray shown = m_demonstration->call(u"monitors"_s, {}, LimitMs).result.toArray();
    QCOMPARE(shown.size(), 1);
    QCOMPARE(shown.first()[u"model"_s], QJsonValue(u"TK30Z"_s));
    QCOMPARE(shown.first()[u"simulated"_s], QJsonValue(true));
    QVERIFY(m_demonstration
                ->call(u"set"_s, {{u"path"_s, u"brightness.displayBrightness"_s}, {u"value"_s, 51}}, LimitMs)
                .ok());
    QVERIFY(m_demonstration->call(u"idle"_s, {}, LimitMs).ok());
    // The lowest 30 are the overlay's; the rest is the monitor's own range.
    QCOMPARE(m_demonstration->call(u"sim.get"_s, {{u"code"_s, 0x10}}).result[u"value"_s], QJsonValue(30));
    QVERIFY(!m_demonstration->call(u"ui.windows"_s).result.toArray().isEmpty());
    QCOMPARE(m_demonstration->call(u"ui.warnings"_s).result.toArray(), QJsonArray());
    QCOMPARE(monitors(), QJsonArray());
    // A second press brings no second one: it shows the window of the first and ends.
    const auto isShown = [this] {
        const QJsonArray windows = m_demonstration->call(u"ui.windows"_s).result.toArray();
        return std::any_of(windows.begin(), windows.end(), [](const QJsonValue& window) {
            return window[u"name"_s] == u"mainWindow"_s && window[u"visible"_s].toBool();
        });
    };
    QVERIFY(isShown());
    QVERIFY(m_demonstration->call(u"ui.hide"_s).ok());
    QVERIFY(!isShown());
    QVERIFY(press(u"Try it with a simulated monitor"_s));
    QTRY_VERIFY_WITH_TIMEOUT(isShown(), LimitMs);
    QCOMPARE(m_demonstration->call(u"sim.get"_s, {{u"code"_s, 0x10}}).result[u"value"_s], QJsonValue(30));
    QVERIFY(m_demonstration->call(u"quit"_s).ok());
    QTRY_VERIFY_WITH_TIMEOUT(!m_demonstration->isConnected(), LimitMs);
    m_demonstration.reset();
    // Quitting it leaves the real program alone.
    QCOMPARE(monitors(), QJsonArray());
}

void TestWindow::troublesAreToldInTheUsersLanguage()
{
    m_bed->plug(*m_port, *m_series);
    m_bed->setAccess(*m_port, false);
    m_desk->setChildModifier(dropFileRights);
    QVERIFY(start("offscreen"));
    const auto notice = [this] { return client().get(u"context.notices"_s)[0].toString(); };
    QTRY_VERIFY2_WITH_TIMEOUT(notice().startsWith(u"No permission to use /dev/i2c-4, "_s),
                              qPrintable(notice()), LimitMs);
    QTRY_VERIFY(names(u"label"_s).contains(notice()));
    QVERIFY(client().call(u"ui.open"_s, {{u"section"_s, u"general"_s}}).ok());
    QVERIFY(client().call(u"ui.setValue"_s, {{u"name"_s, u"Language"_s}, {u"value"_s, u"Deutsch"_s}}).ok());
    QTRY_VERIFY2(notice().startsWith(u"Keine Berechtigung f\u00fcr /dev/i2c-4, "_s), qPrintable(notice()));
    QVERIFY2(!notice().contains(u'%'), qPrintable(notice()));
    QTRY_VERIFY(names(u"label"_s).contains(notice()));
    QVERIFY(client().call(u"ui.open"_s, {{u"section"_s, u"diagnostics"_s}}).ok());
    QTRY_VERIFY(names(u"label"_s).count(notice()) == 2);
    // A report is for whoever helps, in English.
    const QString report = client().call(u"report"_s).result[u"text"_s].toString();
    QVERIFY2(report.contains(u"No permission to use /dev/i2c-4"_s), qPrintable(report));
    QCOMPARE(client().call(u"ui.warnings"_s).result.toArray(), QJsonArray());
}

QTEST_GUILESS_MAIN(TestWindow)
#include "tst_i2c_window.moc"
