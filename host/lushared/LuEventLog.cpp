// SPDX-License-Identifier: Apache-2.0
#include "LuEventLog.h"

#include <ZrCore/ZrClock.h>
#include <ZrCore/ZrDispatch.h>
#include <ZrCore/ZrSequence.h>

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <deque>
#include <mutex>

namespace {

constexpr qint64 FileLimit = 4 * 1024 * 1024; ///< Bytes after which a file becomes the older one of two.
constexpr size_t MemoryLimit = 20000;         ///< Events of this run that can be asked for.

QJsonObject toJson(const LuEvent& event)
{
    QJsonObject object{{QStringLiteral("seq"), qint64(event.seq)},
                       {QStringLiteral("run"), event.run},
                       {QStringLiteral("time"), event.time.toString(Qt::ISODateWithMs)},
                       {QStringLiteral("monitor"), event.monitor},
                       {QStringLiteral("module"), event.module},
                       {QStringLiteral("action"), event.action},
                       {QStringLiteral("source"), event.source},
                       {QStringLiteral("parameters"), QJsonArray::fromStringList(event.parameters)}};
    if (event.onOff)
        object.insert(QStringLiteral("on"), event.on);
    else
        object.insert(QStringLiteral("event"), event.event);
    return object;
}

LuEvent fromJson(const QJsonObject& object)
{
    LuEvent event;
    event.seq = quint64(object.value(QLatin1String("seq")).toInteger());
    event.run = object.value(QLatin1String("run")).toInt();
    event.time = QDateTime::fromString(object.value(QLatin1String("time")).toString(), Qt::ISODateWithMs);
    event.monitor = object.value(QLatin1String("monitor")).toString();
    event.module = object.value(QLatin1String("module")).toString();
    event.action = object.value(QLatin1String("action")).toInt();
    event.onOff = object.contains(QLatin1String("on"));
    event.on = object.value(QLatin1String("on")).toBool();
    event.event = object.value(QLatin1String("event")).toString();
    event.source = object.value(QLatin1String("source")).toInt();
    const QJsonArray parameters = object.value(QLatin1String("parameters")).toArray();
    for (const QJsonValue& parameter : parameters)
        event.parameters.append(parameter.toString());
    return event;
}

} // namespace

struct LuEventLog::Private
{
    mutable std::mutex mutex;
    std::deque<LuEvent> events;
    QList<QByteArray> unwritten;
    QString path;
    int run = 1;
    std::mutex fileMutex;
    std::unique_ptr<ZrDispatch> writer;

    QString olderPath() const { return path + QLatin1String(".1"); }

    /// Events on disk, older file first. Damaged lines are left out: the last one may be torn by a power cut.
    QList<LuEvent> stored() const
    {
        QList<LuEvent> result;
        const QStringList paths{olderPath(), path};
        for (const QString& name : paths) {
            QFile file(name);
            if (!file.open(QIODevice::ReadOnly))
                continue;
            while (!file.atEnd()) {
                const QJsonDocument document = QJsonDocument::fromJson(file.readLine());
                if (document.isObject())
                    result.append(fromJson(document.object()));
            }
        }
        return result;
    }

    void write()
    {
        const std::lock_guard fileLock(fileMutex);
        QList<QByteArray> lines;
        {
            const std::lock_guard lock(mutex);
            lines.swap(unwritten);
        }
        if (lines.isEmpty() || path.isEmpty())
            return;
        QFile file(path);
        if (file.size() > FileLimit) {
            QFile::remove(olderPath());
            file.rename(olderPath());
            file.setFileName(path);
        }
        if (!file.open(QIODevice::Append)) {
            qWarning().noquote() << "[LuEventLog] cannot write" << path << file.errorString();
            return;
        }
        for (const QByteArray& line : std::as_const(lines))
            file.write(line);
    }
};

LuEventLog::LuEventLog() : d(new Private) {}

LuEventLog::~LuEventLog() = default;

LuEventLog& LuEventLog::instance()
{
    // Never destroyed: see LuSettings.
    static auto* log = new LuEventLog;
    return *log;
}

void LuEventLog::open(const QString& directory)
{
    if (!QDir().mkpath(directory)) {
        qWarning().noquote() << "[LuEventLog] cannot make" << directory << "- events are kept in memory only";
        return;
    }
    d->path = directory + QLatin1String("/events.jsonl");
    const QList<LuEvent> stored = d->stored();
    for (const LuEvent& event : stored)
        d->run = qMax(d->run, event.run + 1);
}

void LuEventLog::record(LuEvent event)
{
    event.time = ZrClock::instance().now();
    event.run = 0;
    {
        const std::lock_guard lock(d->mutex);
        event.seq = ZrSequence::next();
        d->events.push_back(event);
        if (d->events.size() > MemoryLimit)
            d->events.pop_front();
        if (!d->path.isEmpty()) {
            LuEvent numbered = event;
            numbered.run = d->run;
            d->unwritten.append(QJsonDocument(toJson(numbered)).toJson(QJsonDocument::Compact) + '\n');
            if (!d->writer)
                d->writer = std::make_unique<ZrDispatch>(QStringLiteral("events"));
            d->writer->postUnique(nullptr, QStringLiteral("write"), [this] { d->write(); });
        }
    }
    Q_EMIT recorded(event);
}

QList<LuEvent> LuEventLog::events(quint64 since, int run) const
{
    QList<LuEvent> result;
    if (run == 0) {
        const std::lock_guard lock(d->mutex);
        for (const LuEvent& event : d->events) {
            if (event.seq > since)
                result.append(event);
        }
        return result;
    }
    const QList<LuEvent> stored = d->stored();
    for (LuEvent event : stored) {
        if (event.run == d->run + run && event.seq > since) {
            event.run = run;
            result.append(event);
        }
    }
    return result;
}

void LuEventLog::flush()
{
    d->write();
}
