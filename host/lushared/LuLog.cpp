// SPDX-License-Identifier: Apache-2.0
#include "LuLog.h"

#include <ZrCore/ZrSequence.h>

#include <QByteArray>
#include <QDateTime>

#include <cstdio>
#include <deque>
#include <mutex>

namespace {

struct Ring
{
    std::mutex mutex;
    std::deque<LuLogLine> lines;
    QList<QString> qmlWarnings;
};

/// Never destroyed: messages may come while the program's other objects go.
Ring& ring()
{
    static auto* instance = new Ring;
    return *instance;
}

QString levelName(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("debug");
    case QtInfoMsg:
        return QStringLiteral("info");
    case QtWarningMsg:
        return QStringLiteral("warning");
    case QtCriticalMsg:
        return QStringLiteral("critical");
    case QtFatalMsg:
        return QStringLiteral("fatal");
    }
    return QStringLiteral("info");
}

bool comesFromQml(const QMessageLogContext& context, const QString& text)
{
    const QLatin1String category(context.category);
    const QLatin1String file(context.file);
    return category == QLatin1String("qml") || category == QLatin1String("qt.qml") ||
           file.endsWith(QLatin1String(".qml")) || text.startsWith(QLatin1String("qrc:/"));
}

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const QString level = levelName(type);
    {
        const std::lock_guard lock(ring().mutex);
        ring().lines.push_back({ZrSequence::next(), level, text});
        if (ring().lines.size() > size_t(LuLog::Capacity))
            ring().lines.pop_front();
        if ((type == QtWarningMsg || type == QtCriticalMsg) && comesFromQml(context, text))
            ring().qmlWarnings.append(text);
    }
    QByteArray line = text.toUtf8();
    if (type != QtInfoMsg)
        line.prepend(level.toLatin1() + ": ");
    line.append('\n');
    std::fwrite(line.constData(), 1, size_t(line.size()), stderr);
}

} // namespace

void LuLog::install()
{
    qInstallMessageHandler(handleMessage);
}

QList<LuLogLine> LuLog::lines(quint64 since)
{
    const std::lock_guard lock(ring().mutex);
    QList<LuLogLine> result;
    for (const LuLogLine& line : ring().lines) {
        if (line.seq > since)
            result.append(line);
    }
    return result;
}

QList<QString> LuLog::qmlWarnings()
{
    const std::lock_guard lock(ring().mutex);
    return ring().qmlWarnings;
}
