// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// One run of the program, measured from outside.
class ProcessProbe
{
public:
    /// Starts the program with folders and a socket of its own.
    explicit ProcessProbe(const QStringList& arguments);
    ~ProcessProbe();

    /// Milliseconds from the start to the first answer of @p method; -1 if none came.
    double startMs(const QString& method);

    /// Resident memory in MB, shared pages included.
    double residentMb() const;

    /// Voluntary context switches of all threads since their start.
    qint64 wakeUps() const;

    /// What a method answers, as JSON text; empty without an answer.
    /// @param parameters a JSON object.
    QByteArray call(const QByteArray& method, const QByteArray& parameters = "{}");

private:
    QTemporaryDir m_directory;
    QProcess m_process;
    QString m_socket;
    qint64 m_startedNs = 0;
};
