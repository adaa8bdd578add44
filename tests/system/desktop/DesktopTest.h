// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Patience.h"
#include "XServer.h"

#include <PanelCore/MonitorInfo.h>
#include <ddc/Bus.h>
#include <panelcore/MonitorLink.h>

#include <QGuiApplication>
#include <QtTest>

#include <csignal>
#include <cstdio>
#include <sys/prctl.h>

/// main() of a test on an X server of its own. The server stands before the application object and falls
/// after it; a server that does not start fails the test.
template <class Test>
int desktopMain(int argc, char** argv)
{
    XServer server;
    if (!server.start()) {
        std::fprintf(stderr, "FAIL! %s\n", server.error().c_str());
        return 1;
    }
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    QGuiApplication application(argc, argv);
    Test test(server);
    return QTest::qExec(&test, argc, argv);
}

#define DESKTOP_MAIN(Test)                                                                                   \
    int main(int argc, char** argv)                                                                          \
    {                                                                                                        \
        return desktopMain<Test>(argc, argv);                                                                \
    }

/// A monitor that shows a screen of the server.
inline QSharedPointer<MonitorInfo> monitorOn(const QString& screen)
{
    MonitorDescription description;
    description.id = QStringLiteral("M@") + screen;
    description.modelName = QStringLiteral("M");
    description.screenName = screen;
    description.nativeHandle = screen;
    return MonitorLink::create(description, nullptr, MonitorLink::Waits::None);
}

/// A program that runs beside the test and ends with it.
class Beside
{
public:
    ~Beside() { stop(); }

    bool start(const QString& program, const QStringList& arguments)
    {
        m_process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
        m_process.start(program, arguments);
        return m_process.waitForStarted(30'000);
    }
    void stop()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.terminate();
        if (!m_process.waitForFinished(10'000)) {
            m_process.kill();
            m_process.waitForFinished();
        }
    }
    QProcess& process() { return m_process; }

private:
    QProcess m_process;
};

inline QString outputOf(const QString& command)
{
    return QString::fromUtf8(outputOf(command.toStdString()).c_str());
}
