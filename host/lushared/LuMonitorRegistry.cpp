// SPDX-License-Identifier: Apache-2.0
#include "LuMonitorRegistry.h"

#include "LuEventLog.h"
#include "LuHostOptions.h"
#include "LuModelHost.h"
#include "LuMonitorModelPrivate.h"
#include "LuRetirement.h"
#include "LuSettings.h"
#include "LuStatisticsStore.h"

#include <ZrCore/ZrDispatch.h>
#include <ZrCore/ZrIdle.h>
#include <panelcore/MonitorLink.h>

#include <QDebug>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr qint64 EndLimitMs = 500;      ///< How long waiting jobs may go on when the program ends, and
constexpr qint64 LastJobLimitMs = 2000; ///< the one that runs then.

} // namespace

struct LuMonitorRegistry::Private
{
    /// A monitor in the order of its appearance; the model comes when the monitor has told its colour mode.
    struct Entry
    {
        QSharedPointer<MonitorInfo> info;
        QSharedPointer<ZrDispatch> probe;
        LuMonitorModel* model = nullptr;
        bool asleep = false;   ///< Said before there was a model.
        bool atLaunch = false; ///< It was there when the program started.
    };

    /// Lets a model that is made belong to the program's launch or not.
    class LaunchScope
    {
    public:
        explicit LaunchScope(bool atLaunch) : m_before(LuHostOptions::instance().launching)
        {
            LuHostOptions::instance().launching = atLaunch;
        }
        ~LaunchScope() { LuHostOptions::instance().launching = m_before; }
        LaunchScope(const LaunchScope&) = delete;
        LaunchScope& operator=(const LaunchScope&) = delete;

    private:
        const bool m_before;
    };

    LuMonitorRegistry* q;
    QList<LuPackagesInterface*> packages;
    std::vector<Entry> entries;
    LuMonitorModel* current = nullptr;
    bool chosen = false; ///< The user made a choice; appearing monitors do not change it.
    bool searching = false;
    LuRetirement retirement;

    auto entryOf(const QString& id)
    {
        return std::find_if(entries.begin(), entries.end(),
                            [&id](const Entry& entry) { return entry.info->id() == id; });
    }

    LuPackagesInterface* packageOf(const QString& modelName) const
    {
        for (LuPackagesInterface* package : packages) {
            if (package->supportedModels().contains(modelName))
                return package;
        }
        return packages.isEmpty() ? nullptr : packages.first();
    }

    void construct(const QSharedPointer<MonitorInfo>& info)
    {
        // A monitor that was plugged anew while it was asked has another handle with the same id.
        const auto entry = std::find_if(entries.begin(), entries.end(),
                                        [&info](const Entry& each) { return each.info == info; });
        if (entry == entries.end())
            return;
        const QString id = info->id();
        entry->probe.reset();
        LuPackagesInterface* package = packageOf(entry->info->modelName());
        {
            const LaunchScope scope(entry->atLaunch);
            entry->model = package ? package->modelConstructor()(q, entry->info) : nullptr;
            if (entry->model)
                LuModelHost::launch(entry->model);
        }
        if (!entry->model) {
            qWarning().noquote() << "[LuMonitorRegistry] no package makes a model for" << id;
            entries.erase(entry);
        } else {
            qInfo().noquote() << "[LuMonitorRegistry] monitor" << id
                              << (entry->model->isModelSupported() ? "is supported" : "is not supported");
            LuModelHost::setAsleep(entry->model, entry->asleep);
            Q_EMIT q->monitorAdded(entry->model);
            Q_EMIT q->monitorsChanged();
            chooseCurrent();
        }
        settle();
    }

    void settle()
    {
        if (q->isBusy())
            return;
        if (!searching)
            LuHostOptions::instance().launching = false;
        Q_EMIT q->settled();
    }

    /// Without a choice of the user: the first supported monitor, else the first external one, else the
    /// first.
    void chooseCurrent()
    {
        if (chosen && current)
            return;
        const QList<LuMonitorModel*> models = q->monitors();
        const auto rank = [](const LuMonitorModel* model) {
            return model->isModelSupported() ? 0 : model->isModelBuiltIn() ? 2 : 1;
        };
        const auto best = std::min_element(models.begin(), models.end(),
                                           [&](auto* a, auto* b) { return rank(a) < rank(b); });
        makeCurrent(best == models.end() ? nullptr : *best);
    }

    void makeCurrent(LuMonitorModel* model)
    {
        if (current == model)
            return;
        LuMonitorModel* before = current;
        current = model;
        if (before)
            LuModelHost::setCurrent(before, false);
        if (model)
            LuModelHost::setCurrent(model, true);
        Q_EMIT q->currentChanged();
    }
};

LuMonitorRegistry::LuMonitorRegistry(QObject* parent)
    : QObject(parent), d(new Private{this, {}, {}, nullptr, false, false, {}})
{
}

LuMonitorRegistry::~LuMonitorRegistry()
{
    while (!d->entries.empty())
        removeMonitor(d->entries.back().info->id());
    (void)d->retirement.end(LastJobLimitMs);
}

void LuMonitorRegistry::addPackage(LuPackagesInterface* package)
{
    d->packages.append(package);
    QStringList names;
    const QList<QUrl> urls = package->widgetUrls();
    for (const QUrl& url : urls)
        names.append(QFileInfo(url.path()).completeBaseName());
    LuMonitorModelPrivate::packageWidgets().insert(package->name(), names);
}

QList<LuPackagesInterface*> LuMonitorRegistry::packages() const
{
    return d->packages;
}

LuPackagesInterface* LuMonitorRegistry::packageFor(const LuMonitorModel* model) const
{
    return d->packageOf(model->modelName());
}

void LuMonitorRegistry::setSearching(bool searching)
{
    d->searching = searching;
    if (!searching)
        LuHostOptions::instance().launching = false;
}

void LuMonitorRegistry::addMonitor(const QSharedPointer<MonitorInfo>& info)
{
    const QString id = info->id();
    if (d->entryOf(id) != d->entries.end()) {
        qWarning().noquote() << "[LuMonitorRegistry] monitor" << id << "is there already";
        return;
    }
    LuStatisticsStore::instance().attach(info);
    d->entries.push_back({info, {}, nullptr, false, LuHostOptions::instance().launching});
    if (!LuHostOptions::instance().autoSync) {
        ZrDispatch::main()->post(this, [this, info] { d->construct(info); });
        return;
    }
    // The first question to the monitor may take long: a model is made when it is answered or given up.
    const auto probe = QSharedPointer<ZrDispatch>::create(QStringLiteral("probe ") + id, id);
    d->entries.back().probe = probe;
    probe->post(nullptr, [this, info] {
        MonitorLink::of(*info).probeColorMode();
        ZrDispatch::main()->post(this, [this, info] { d->construct(info); });
    });
}

bool LuMonitorRegistry::removeMonitor(const QString& id)
{
    const auto entry = d->entryOf(id);
    if (entry == d->entries.end())
        return false;
    MonitorLink::of(*entry->info).cancel();
    Private::Entry gone = std::move(*entry);
    d->entries.erase(entry);
    LuStatisticsStore::instance().letGo(gone.info);
    if (const QSharedPointer<ZrDispatch> own = MonitorLink::of(*gone.info).ownQueue())
        d->retirement.add(own, gone.info, nullptr);
    if (gone.probe)
        d->retirement.add(gone.probe, gone.info, nullptr);
    if (gone.model) {
        if (d->current == gone.model) {
            d->chosen = false;
            d->current = nullptr;
            LuModelHost::setCurrent(gone.model, false);
        }
        Q_EMIT monitorAboutToBeRemoved(gone.model);
        d->chooseCurrent();
        Q_EMIT monitorsChanged();
        if (!d->current)
            Q_EMIT currentChanged();
        d->retirement.add(gone.model->dispatch(), gone.info, gone.model);
    }
    qInfo().noquote() << "[LuMonitorRegistry] monitor" << id << "is gone";
    if (!gone.model)
        d->settle();
    return true;
}

void LuMonitorRegistry::setAsleep(const QString& id, bool asleep)
{
    const auto entry = d->entryOf(id);
    if (entry == d->entries.end())
        return;
    entry->asleep = asleep;
    if (entry->model)
        LuModelHost::setAsleep(entry->model, asleep);
}

void LuMonitorRegistry::noteDisturbance()
{
    const QList<LuMonitorModel*> models = monitors();
    for (LuMonitorModel* model : models)
        LuModelHost::noteDisturbance(model);
}

bool LuMonitorRegistry::shutDown()
{
    // What the user asked for last still reaches the monitors, unless one of them hangs.
    QList<QSharedPointer<ZrDispatch>> queues;
    const QList<LuMonitorModel*> models = monitors();
    for (const LuMonitorModel* model : models)
        queues.append(model->dispatch());
    ZrIdle::wait(queues, EndLimitMs);
    for (LuMonitorModel* model : models)
        LuModelHost::fireExitEvents(model);
    while (!d->entries.empty())
        removeMonitor(d->entries.back().info->id());
    const bool ended = d->retirement.end(LastJobLimitMs);
    LuStatisticsStore::instance().flush();
    LuEventLog::instance().flush();
    LuSettings::instance().flush();
    return ended;
}

QList<LuMonitorModel*> LuMonitorRegistry::monitors() const
{
    QList<LuMonitorModel*> models;
    for (const Private::Entry& entry : d->entries) {
        if (entry.model)
            models.append(entry.model);
    }
    return models;
}

bool LuMonitorRegistry::isBusy() const
{
    return std::any_of(d->entries.begin(), d->entries.end(),
                       [](const Private::Entry& entry) { return !entry.model; });
}

LuMonitorModel* LuMonitorRegistry::current() const
{
    return d->current;
}

bool LuMonitorRegistry::select(const QString& address)
{
    LuMonitorModel* model = find(address);
    if (!model)
        return false;
    d->chosen = true;
    d->makeCurrent(model);
    return true;
}

LuMonitorModel* LuMonitorRegistry::find(const QString& address) const
{
    if (address.isEmpty())
        return d->current;
    LuMonitorModel* byName = nullptr;
    int named = 0;
    const QList<LuMonitorModel*> models = monitors();
    for (LuMonitorModel* model : models) {
        if (model->id() == address)
            return model;
        if (model->modelName() == address) {
            byName = model;
            ++named;
        }
    }
    return named == 1 ? byName : nullptr;
}
