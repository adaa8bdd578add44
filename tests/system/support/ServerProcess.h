// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Patience.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QStringList>
#include <QTest>

#include <csignal>
#include <functional>

/// A server that a test starts for itself and ends with itself.
///
/// What it writes is kept, so that a test can say why its server did not come up.
class ServerProcess
{
public:
    ServerProcess() = default;
    ~ServerProcess() { stop(); }
    Q_DISABLE_COPY_MOVE(ServerProcess)

    /// Environment of the next start; at first the test's own.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();

    /// Starts a program and waits until it serves. Empty on success, else what went wrong.
    QString start(const QString& program, const QStringList& arguments, const std::function<bool()>& serves,
                  int milliseconds = 120'000)
    {
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.setProcessEnvironment(environment);
        m_process.start(program, arguments);
        if (!m_process.waitForStarted(120'000))
            return program + QStringLiteral(" cannot be started: ") + m_process.errorString();
        const bool up = QTest::qWaitFor([&] { return m_process.state() == QProcess::NotRunning || serves(); },
                                        milliseconds);
        if (m_process.state() == QProcess::NotRunning)
            return program + QStringLiteral(" ended: ") + output();
        return up ? QString() : program + QStringLiteral(" does not serve: ") + output();
    }

    /// What it has written so far.
    QString output()
    {
        m_output += m_process.readAll();
        return QString::fromLocal8Bit(m_output);
    }

    void stop()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        // One that was left stopped would not see its end.
        pause(false);
        m_process.terminate();
        if (!m_process.waitForFinished(5000)) {
            m_process.kill();
            m_process.waitForFinished();
        }
    }

    qint64 processId() const { return m_process.processId(); }

    /// Stops it as it stands, or lets it go on: what it is asked meanwhile waits.
    bool pause(bool on)
    {
        return isRunning() && ::kill(pid_t(m_process.processId()), on ? SIGSTOP : SIGCONT) == 0;
    }

    bool isRunning() const { return m_process.state() == QProcess::Running; }

private:
    QProcess m_process;
    QByteArray m_output;
};

/// Runs a program to its end; its exit code is 0 for success. What it wrote goes to @p output.
inline bool runTool(const QString& program, const QStringList& arguments, QString* output = nullptr)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    // The event loop goes on, since the tool may speak with the test itself.
    const bool ended = QTest::qWaitFor(
        [&] { return process.state() == QProcess::NotRunning && process.error() != QProcess::Timedout; },
        120'000);
    if (output)
        *output = QString::fromLocal8Bit(process.readAll());
    return ended && process.exitStatus() == QProcess::NormalExit &&
           process.error() == QProcess::UnknownError && process.exitCode() == 0;
}
