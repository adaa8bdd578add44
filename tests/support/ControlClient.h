// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QLocalSocket>
#include <QString>
#include <QTimer>

/// A client of the control socket for tests. It waits in the event loop, so that the server may live in the
/// same thread.
class ControlClient
{
public:
    /// An answer: an error has a code other than 0.
    struct Answer
    {
        QJsonValue result;
        int code = 0;
        QString message;
        bool timedOut = false;

        bool ok() const { return code == 0 && !timedOut; }
    };

    static constexpr int TimeoutMs = 30'000;

    ~ControlClient() { m_socket.disconnect(); }

    bool connectTo(const QString& path, int timeoutMs = 5000)
    {
        m_socket.connectToServer(path);
        return m_socket.waitForConnected(timeoutMs);
    }
    QLocalSocket& socket() { return m_socket; }
    bool isConnected() const { return m_socket.state() == QLocalSocket::ConnectedState; }

    /// Sends a request and waits for its answer; notifications that come meanwhile are kept.
    Answer call(const QString& method, const QJsonObject& parameters = {}, int timeoutMs = TimeoutMs)
    {
        return wait(send(method, parameters), timeoutMs);
    }

    /// Sends a request without waiting.
    /// @return its id, for wait().
    int send(const QString& method, const QJsonObject& parameters = {})
    {
        const int id = ++m_lastId;
        sendLine(QJsonDocument(QJsonObject{{QStringLiteral("jsonrpc"), QStringLiteral("2.0")},
                                           {QStringLiteral("id"), id},
                                           {QStringLiteral("method"), method},
                                           {QStringLiteral("params"), parameters}})
                     .toJson(QJsonDocument::Compact));
        return id;
    }

    void sendLine(const QByteArray& line)
    {
        m_socket.write(line + '\n');
        m_socket.flush();
    }

    Answer wait(int id, int timeoutMs = TimeoutMs)
    {
        Answer answer;
        const bool came = waitUntil([&] { return takeAnswer(id, &answer); }, timeoutMs);
        answer.timedOut = !came;
        return answer;
    }

    /// The next message of whatever kind that is not an answer waited for elsewhere; empty if none comes.
    QJsonObject nextMessage(int timeoutMs = TimeoutMs)
    {
        QJsonObject message;
        waitUntil(
            [&] {
                if (m_messages.isEmpty())
                    return false;
                message = m_messages.takeFirst();
                return true;
            },
            timeoutMs);
        return message;
    }

    /// True once the other side has ended the connection.
    bool waitForEnd(int timeoutMs = TimeoutMs)
    {
        return waitUntil([this] { return !isConnected(); }, timeoutMs);
    }

    /// What a method answers as "value", null on an error.
    QJsonValue value(const QString& method, const QJsonObject& parameters)
    {
        return call(method, parameters).result.toObject().value(QLatin1String("value"));
    }
    QJsonValue get(const QString& path)
    {
        return value(QStringLiteral("get"), {{QStringLiteral("path"), path}});
    }
    Answer set(const QString& path, const QJsonValue& newValue)
    {
        return call(QStringLiteral("set"),
                    {{QStringLiteral("path"), path}, {QStringLiteral("value"), newValue}});
    }

    /// Messages that have come and were not taken yet: notifications, and errors without an id.
    const QList<QJsonObject>& messages()
    {
        readAll();
        return m_messages;
    }
    void clearMessages()
    {
        readAll();
        m_messages.clear();
    }

private:
    template <class Condition>
    bool waitUntil(Condition condition, int timeoutMs)
    {
        QElapsedTimer elapsed;
        elapsed.start();
        for (;;) {
            readAll();
            if (condition())
                return true;
            const int left = timeoutMs - int(elapsed.elapsed());
            if (left <= 0)
                return false;
            QEventLoop loop;
            QObject::connect(&m_socket, &QLocalSocket::readyRead, &loop, &QEventLoop::quit);
            QObject::connect(&m_socket, &QLocalSocket::disconnected, &loop, &QEventLoop::quit);
            QTimer::singleShot(isConnected() ? left : qMin(left, 10), &loop, &QEventLoop::quit);
            loop.exec();
        }
    }

    void readAll()
    {
        m_buffer += m_socket.readAll();
        for (qsizetype newline; (newline = m_buffer.indexOf('\n')) >= 0;) {
            m_messages.append(QJsonDocument::fromJson(m_buffer.left(newline)).object());
            m_buffer.remove(0, newline + 1);
        }
    }

    bool takeAnswer(int id, Answer* answer)
    {
        for (qsizetype i = 0; i < m_messages.size(); ++i) {
            const QJsonObject message = m_messages[i];
            if (message.contains(QLatin1String("method")) || message.value(QLatin1String("id")) != id)
                continue;
            m_messages.removeAt(i);
            answer->result = message.value(QLatin1String("result"));
            const QJsonObject error = message.value(QLatin1String("error")).toObject();
            answer->code = error.value(QLatin1String("code")).toInt();
            answer->message = error.value(QLatin1String("message")).toString();
            return true;
        }
        return false;
    }

    QLocalSocket m_socket;
    QByteArray m_buffer;
    QList<QJsonObject> m_messages;
    int m_lastId = 0;
};
