// SPDX-License-Identifier: Apache-2.0
#include "LuSettings.h"

#include <ZrCore/ZrDispatch.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <mutex>

struct LuSettings::Private
{
    mutable std::mutex mutex;
    std::unique_ptr<QSettings> store;
    bool reportedFailure = false;
    // Last, so that it ends first: its jobs use what stands above.
    std::unique_ptr<ZrDispatch> writer;

    /// The store; opened at its default place if nobody did. Called under the mutex.
    QSettings& opened()
    {
        if (!store)
            store = std::make_unique<QSettings>();
        return *store;
    }

    bool write()
    {
        const std::lock_guard lock(mutex);
        QSettings& settings = opened();
        settings.sync();
        // The store wakes itself through an event that only costs memory here: the writer has done the work.
        QCoreApplication::removePostedEvents(&settings);
        const bool good = settings.status() == QSettings::NoError;
        if (!good && !reportedFailure)
            qWarning().noquote() << "[LuSettings] cannot write" << settings.fileName()
                                 << "- changes last until the program ends";
        reportedFailure = !good;
        return good;
    }

    void writeSoon()
    {
        if (!writer)
            writer = std::make_unique<ZrDispatch>(QStringLiteral("settings"));
        writer->postUnique(nullptr, QStringLiteral("write"), [this] { write(); });
    }
};

LuSettings::LuSettings() : d(new Private) {}

LuSettings::~LuSettings() = default;

LuSettings& LuSettings::instance()
{
    // Never destroyed: the writer's thread must not be joined while the C library ends. shutDown flushes.
    static auto* settings = new LuSettings;
    return *settings;
}

bool LuSettings::open(const QString& directory)
{
    const std::lock_guard lock(d->mutex);
    QSettings::setDefaultFormat(QSettings::IniFormat);
    if (!directory.isEmpty())
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, QDir(directory).absolutePath());
    d->store.reset();
    // The first object on a file is the one that parses it and knows of damage; sections are parsed when
    // asked for.
    auto probe = std::make_unique<QSettings>();
    const QString path = probe->fileName();
    (void)probe->allKeys();
    const bool isDamaged = probe->status() == QSettings::FormatError;
    probe.reset();
    if (isDamaged) {
        const QString aside = path + QLatin1String(".damaged-") +
                              QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
        const bool kept = QFile::rename(path, aside);
        qWarning().noquote() << "[LuSettings]" << path << "is damaged;"
                             << (kept ? QStringLiteral("kept as %1, starting with defaults").arg(aside)
                                      : QStringLiteral("it could not be kept aside"));
    }
    const bool writable = QDir().mkpath(QFileInfo(path).absolutePath()) &&
                          QFileInfo(QFileInfo(path).absolutePath()).isWritable();
    if (!writable)
        qWarning().noquote() << "[LuSettings] cannot write to" << QFileInfo(path).absolutePath()
                             << "- changes last until the program ends";
    d->store = std::make_unique<QSettings>();
    return writable;
}

QVariant LuSettings::value(const QString& key, const QVariant& defaultValue) const
{
    const std::lock_guard lock(d->mutex);
    return d->opened().value(key, defaultValue);
}

void LuSettings::setValue(const QString& key, const QVariant& value)
{
    const std::lock_guard lock(d->mutex);
    d->opened().setValue(key, value);
    d->writeSoon();
}

bool LuSettings::contains(const QString& key) const
{
    const std::lock_guard lock(d->mutex);
    return d->opened().contains(key);
}

void LuSettings::remove(const QString& key)
{
    const std::lock_guard lock(d->mutex);
    d->opened().remove(key);
    d->writeSoon();
}

QStringList LuSettings::allKeys() const
{
    const std::lock_guard lock(d->mutex);
    return d->opened().allKeys();
}

bool LuSettings::flush()
{
    return d->write();
}

QString LuSettings::fileName() const
{
    const std::lock_guard lock(d->mutex);
    return d->opened().fileName();
}
