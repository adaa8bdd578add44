// SPDX-License-Identifier: Apache-2.0
#include "LuStatisticsStore.h"

#include <PanelCore/MonitorInfo.h>
#include <ZrCore/ZrDispatch.h>
#include <panelcore/MonitorLink.h>

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QUrl>

#include <atomic>
#include <future>

namespace {

/// A power cut loses no more than the numbers of so long.
constexpr qint64 SavePeriodMs = 60000;
constexpr qint64 LargestFile = 1024 * 1024;

bool writeWhole(const QString& path, const QByteArray& bytes, QString* problem)
{
    QSaveFile file(path);
    const bool written = file.open(QIODevice::WriteOnly) &&
                         file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
                         file.write(bytes) == bytes.size() && file.commit();
    *problem = file.errorString();
    return written;
}

void keepAside(const QString& path, const QString& why)
{
    const QString aside = path + QLatin1String(".damaged-") +
                          QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
    const bool kept = QFile::rename(path, aside);
    qWarning().noquote() << "[LuStatisticsStore]" << path << "is damaged:" << why
                         << (kept ? QStringLiteral("- kept as %1, counting anew").arg(aside)
                                  : QStringLiteral("- it could not be kept aside"));
}

} // namespace

struct LuStatisticsStore::Private
{
    struct Entry
    {
        QSharedPointer<MonitorInfo> info;
        QByteArray saved; ///< What the file holds.
    };

    QString folder;
    QHash<QString, Entry> entries;
    std::atomic<bool> reportedFailure{false};
    // Last, so that it ends first: its jobs use what stands above.
    std::unique_ptr<ZrDispatch> writer;

    /// The kept numbers; empty if there are none that can be used.
    QJsonObject read(const QString& path, QByteArray* bytes) const
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            if (file.exists())
                qWarning().noquote() << "[LuStatisticsStore] cannot read" << path + QLatin1Char(':')
                                     << file.errorString();
            return {};
        }
        *bytes = file.read(LargestFile);
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(*bytes, &error);
        if (document.isObject())
            return document.object();
        file.close();
        keepAside(path, error.error != QJsonParseError::NoError ? error.errorString()
                                                                : QStringLiteral("not an object"));
        bytes->clear();
        return {};
    }

    void save(const QString& path, Entry& entry)
    {
        const QJsonObject kept = MonitorLink::of(*entry.info).toKeep();
        if (kept.isEmpty())
            return;
        QByteArray bytes = QJsonDocument(kept).toJson();
        if (bytes == entry.saved)
            return;
        entry.saved = bytes;
        writer->postUnique(nullptr, path, [this, path, bytes = std::move(bytes)] {
            QString problem;
            const bool written = writeWhole(path, bytes, &problem);
            if (!written && !reportedFailure)
                qWarning().noquote() << "[LuStatisticsStore] cannot write" << path + QLatin1Char(':')
                                     << problem;
            reportedFailure = !written;
        });
    }
};

LuStatisticsStore::LuStatisticsStore() : d(new Private) {}

LuStatisticsStore::~LuStatisticsStore() = default;

LuStatisticsStore& LuStatisticsStore::instance()
{
    // Never destroyed: the writer's thread must not be joined while the C library ends. shutDown flushes.
    static auto* store = new LuStatisticsStore;
    return *store;
}

void LuStatisticsStore::open(const QString& directory)
{
    flush();
    d->entries.clear();
    d->folder.clear();
    if (directory.isEmpty())
        return;
    const QString folder = QDir(directory).absoluteFilePath(QStringLiteral("statistics"));
    if (!QDir().mkpath(folder)) {
        qWarning().noquote() << "[LuStatisticsStore] cannot make" << folder
                             << "- statistics last until the end";
        return;
    }
    d->folder = folder;
    if (!d->writer)
        d->writer = std::make_unique<ZrDispatch>(QStringLiteral("statistics"));
}

QString LuStatisticsStore::fileOf(const QString& id) const
{
    if (d->folder.isEmpty())
        return {};
    return d->folder + QLatin1Char('/') + QString::fromLatin1(QUrl::toPercentEncoding(id)) +
           QLatin1String(".json");
}

void LuStatisticsStore::attach(const QSharedPointer<MonitorInfo>& info)
{
    if (d->folder.isEmpty() || info->isBuiltIn())
        return;
    const QString path = fileOf(info->id());
    Private::Entry entry{info, {}};
    const QJsonObject kept = d->read(path, &entry.saved);
    if (!kept.isEmpty() && !MonitorLink::of(*info).restore(kept)) {
        keepAside(path, QStringLiteral("numbers that cannot be"));
        entry.saved.clear();
    }
    d->entries.insert(info->id(), std::move(entry));
    // A period begins with the first monitor and goes on as long as there is one.
    if (d->entries.size() == 1)
        save();
}

void LuStatisticsStore::letGo(const QSharedPointer<MonitorInfo>& info)
{
    const auto entry = d->entries.find(info->id());
    if (entry == d->entries.end() || entry->info != info)
        return;
    d->save(fileOf(info->id()), *entry);
    d->entries.erase(entry);
}

void LuStatisticsStore::save()
{
    for (auto entry = d->entries.begin(); entry != d->entries.end(); ++entry)
        d->save(fileOf(entry.key()), *entry);
    if (!d->entries.isEmpty())
        ZrDispatch::main()->postUniqueBackgroundLater(nullptr, QStringLiteral("saveStatistics"), SavePeriodMs,
                                                      [this] { save(); });
}

void LuStatisticsStore::flush()
{
    if (!d->writer)
        return;
    for (auto entry = d->entries.begin(); entry != d->entries.end(); ++entry)
        d->save(fileOf(entry.key()), *entry);
    std::promise<void> written;
    d->writer->post(nullptr, [&written] { written.set_value(); });
    written.get_future().wait();
}
