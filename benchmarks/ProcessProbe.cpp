// SPDX-License-Identifier: Apache-2.0
#include "ProcessProbe.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalSocket>

#include <chrono>

namespace {

constexpr int LimitMs = 20000;

qint64 nowNs()
{
    return std::chrono::steady_clock::now().time_since_epoch().count();
}

} // namespace

ProcessProbe::ProcessProbe(const QStringList& arguments)
    : m_socket(m_directory.filePath(QStringLiteral("run/control.sock")))
{
    QDir().mkdir(m_directory.filePath(QStringLiteral("run")));
    QFile::setPermissions(m_directory.filePath(QStringLiteral("run")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_startedNs = nowNs();
    m_process.start(
        QStringLiteral(PROGRAM_FILE),
        arguments + QStringList{QStringLiteral("--control"), m_socket, QStringLiteral("--config-dir"),
                                m_directory.filePath(QStringLiteral("config")), QStringLiteral("--data-dir"),
                                m_directory.filePath(QStringLiteral("data"))});
}

ProcessProbe::~ProcessProbe()
{
    m_process.terminate();
    if (!m_process.waitForFinished(LimitMs))
        m_process.kill();
    m_process.waitForFinished();
}

QByteArray ProcessProbe::call(const QByteArray& method, const QByteArray& parameters)
{
    QLocalSocket socket;
    socket.connectToServer(m_socket);
    if (!socket.waitForConnected(10))
        return {};
    socket.write("{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"" + method + "\",\"params\":" + parameters +
                 "}\n");
    QByteArray answer;
    while (!answer.endsWith('\n') && socket.waitForReadyRead(LimitMs))
        answer += socket.readAll();
    return answer;
}

double ProcessProbe::startMs(const QString& method)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < LimitMs) {
        if (call(method.toLatin1()).contains("\"result\""))
            return double(nowNs() - m_startedNs) / 1e6;
    }
    return -1;
}

double ProcessProbe::residentMb() const
{
    QFile file(QStringLiteral("/proc/%1/status").arg(m_process.processId()));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024.0;
    }
    return -1;
}

qint64 ProcessProbe::wakeUps() const
{
    qint64 sum = 0;
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(m_process.processId()));
    const QStringList threads = tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& thread : threads) {
        QFile file(tasks.filePath(thread + QStringLiteral("/status")));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QList<QByteArray> lines = file.readAll().split('\n');
        for (const QByteArray& line : lines) {
            if (line.startsWith("voluntary_ctxt_switches:"))
                sum += line.mid(24).trimmed().toLongLong();
        }
    }
    return sum;
}
