// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ControlClient.h"
#include "Patience.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>

/// A running lumen-desk with folders of its own, for tests. It ends with the object.
///
/// LUMEN_DESK is the program's path. Stopping and starting again keeps the folders, as two sessions of a
/// person do.
class DeskProcess
{
public:
    DeskProcess() = default;
    ~DeskProcess() { stop(); }

    /// One simulated TK30Z without waits.
    static QStringList usualOptions()
    {
        return {QStringLiteral("--headless"), QStringLiteral("--simulate"), QStringLiteral("TK30Z"),
                QStringLiteral("--ddc-timing"), QStringLiteral("fast")};
    }

    QString filePath(const QString& name) const { return m_directory.filePath(name); }
    QString socketPath() const { return m_directory.filePath(QStringLiteral("run/c.sock")); }

    /// Run in the program's process before it begins, such as to take rights from it.
    void setChildModifier(std::function<void()> modifier) { m_modifier = std::move(modifier); }

    /// Starts the program and connects to it. False if its socket does not come; errors() tells why.
    bool start(const QStringList& options = usualOptions(), int timeoutMs = 60'000)
    {
        launch(options + ownOptions());
        QElapsedTimer elapsed;
        elapsed.start();
        m_client = std::make_unique<ControlClient>();
        while (!m_client->connectTo(socketPath(), 50)) {
            if (elapsed.elapsed() > timeoutMs || m_process->waitForFinished(20))
                return false;
            m_client = std::make_unique<ControlClient>();
        }
        return true;
    }

    /// Starts the program with exactly these arguments, without waiting.
    void launch(const QStringList& arguments)
    {
        m_client.reset();
        m_process = std::make_unique<QProcess>();
        if (m_modifier)
            m_process->setChildProcessModifier(m_modifier);
        m_process->start(QStringLiteral(LUMEN_DESK), arguments);
    }

    /// Folders and socket of this object, as options.
    QStringList ownOptions() const
    {
        return {QStringLiteral("--control"),    socketPath(),
                QStringLiteral("--config-dir"), m_directory.filePath(QStringLiteral("config")),
                QStringLiteral("--data-dir"),   m_directory.filePath(QStringLiteral("data"))};
    }

    bool isRunning() const
    {
        return m_process && m_process->state() == QProcess::Running && m_client->isConnected();
    }
    ControlClient& client() { return *m_client; }
    QProcess& process() { return *m_process; }

    bool waitForEnd(int timeoutMs = 30'000)
    {
        return m_process->state() == QProcess::NotRunning || m_process->waitForFinished(timeoutMs);
    }

    /// Ends the program as its user does.
    /// @return its exit code, -1 if it did not end by itself.
    int stop()
    {
        if (!m_process)
            return -1;
        if (m_process->state() != QProcess::NotRunning && m_client)
            m_client->call(QStringLiteral("quit"), {}, 5000);
        if (!waitForEnd(m_client ? 30'000 : 0)) {
            m_process->kill();
            m_process->waitForFinished();
        }
        const int code = m_process->exitStatus() == QProcess::NormalExit ? m_process->exitCode() : -1;
        m_errors += QString::fromUtf8(m_process->readAllStandardError());
        m_process.reset();
        m_client.reset();
        return code;
    }

    /// What the program has written on standard error so far.
    QString errors()
    {
        if (m_process) {
            // What is in the pipe but not yet read from it counts, too.
            m_process->setReadChannel(QProcess::StandardError);
            m_process->waitForReadyRead(0);
            m_errors += QString::fromUtf8(m_process->readAllStandardError());
        }
        return m_errors;
    }

private:
    QTemporaryDir m_directory;
    std::function<void()> m_modifier;
    std::unique_ptr<QProcess> m_process;
    std::unique_ptr<ControlClient> m_client;
    QString m_errors;
};
