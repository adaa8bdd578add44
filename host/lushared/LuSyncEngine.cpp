// SPDX-License-Identifier: Apache-2.0
#include "LuSyncEngine.h"

#include "LuHostOptions.h"
#include "LuMonitorModelPrivate.h"

#include <LuShared/LuPlatformNotifications.h>
#include <panelcore/HardwareBrightness.h>
#include <panelcore/MonitorLink.h>

#include <algorithm>
#include <memory>

namespace {

constexpr qint64 FirstBackOffMs = 2000;
constexpr qint64 LastBackOffMs = 60000;
/// What a monitor needs to lay its screen out anew, and how often it is asked meanwhile.
constexpr qint64 LookAgainMs = 300;
constexpr int LookAgainTries = 20;
const QString LookAgainKey = QStringLiteral("lookAgain");
const QString RoundKey = QStringLiteral("syncRound");

/// The package's module is met by its property, as everywhere in the application.
bool showsBrightness(const LuModelModuleInterface* module)
{
    return module->metaObject()->indexOfProperty("displayBrightness") >= 0;
}

} // namespace

void LuSyncEngine::post(Reason reason, std::function<void()> job)
{
    if (reason != Reason::Periodic)
        m_model.dispatch->post(m_model.q, std::move(job));
    else
        m_model.dispatch->postBackground(m_model.q, QStringLiteral("syncStep"), std::move(job));
}

void LuSyncEngine::postSteps(LuModelModuleInterface* module, Reason reason)
{
    const std::shared_ptr<LuSyncTasks> tasks(module->syncPeriodically());
    if (!tasks)
        return;
    // A step may add sub-tasks to the list it came from, so the list lives as long as its steps.
    for (std::function<void()>& step : tasks->takeTasks())
        post(reason, [this, reason, tasks, step = std::move(step)] { runStep(step, reason); });
}

void LuSyncEngine::runStep(const std::function<void()>& step, Reason reason)
{
    if (isAsleep())
        return;
    // A round that finds the monitor silent is over; what somebody asked for is tried all the same.
    if (reason != Reason::Asked && m_model.link().isSilent())
        return;
    step();
}

void LuSyncEngine::postBrightness(LuModelModuleInterface* module, Reason reason)
{
    if (!m_model.link().brightness().isWatched() || (module && !showsBrightness(module)))
        return;
    post(reason, [this] {
        // Nothing else asks such a monitor: a silent one is tried at the pace of the rounds.
        if (!isAsleep() && m_model.link().brightness().refresh())
            Q_EMIT LuPlatformNotifications::instance()->systemBrightnessChanged();
    });
}

void LuSyncEngine::start()
{
    m_started = true;
    postWholeRound();
    lookForColorMode();
}

void LuSyncEngine::lookForColorMode()
{
    if (m_model.supported && !m_model.hasToldColorMode && !isAsleep())
        lookAgain();
}

void LuSyncEngine::postWholeRound()
{
    for (LuModelModuleInterface* module : std::as_const(m_model.modules))
        postSteps(module, Reason::FirstRound);
    post(Reason::FirstRound, [this] { endWholeRound(); });
}

void LuSyncEngine::endWholeRound()
{
    const bool isRead = !m_model.supported || (m_model.hasToldColorMode && !m_model.link().isSilent());
    if (isRead && !isAsleep()) {
        m_readWhole = true;
        m_model.noteMet();
    }
    endRound();
}

void LuSyncEngine::runRound()
{
    m_roundWaits = false;
    if (isAsleep())
        return; // setAsleep() begins anew
    QList<LuModelModuleInterface*> visible;
    for (LuModelModuleInterface* module : std::as_const(m_model.modules)) {
        if (module->syncEnable())
            visible.append(module);
    }
    const bool withColorMode = m_model.syncCurrentColorMode;
    if (visible.isEmpty() && !withColorMode)
        return; // nobody looks; wake() begins anew
    if (withColorMode && m_model.syncColorMode() && !m_readWhole) {
        postWholeRound();
        return;
    }
    if (!m_model.link().isSilent() || !withColorMode) {
        for (LuModelModuleInterface* module : std::as_const(visible))
            postSteps(module, Reason::Periodic);
    }
    for (LuModelModuleInterface* module : std::as_const(visible))
        postBrightness(module, Reason::Periodic);
    post(Reason::Periodic, [this] { endRound(); });
}

void LuSyncEngine::endRound()
{
    if (isAsleep())
        return;
    if (m_model.link().isSilent())
        m_backOffMs = std::clamp(m_backOffMs.get() * 2, FirstBackOffMs, LastBackOffMs);
    else
        m_backOffMs = 0;
    scheduleRound(m_backOffMs.get() > 0 ? m_backOffMs.get() : LuHostOptions::instance().syncPeriodMs);
}

void LuSyncEngine::scheduleRound(qint64 ms)
{
    m_roundWaits = true;
    m_model.dispatch->postUniqueBackgroundLater(m_model.q, RoundKey, ms, [this] { runRound(); });
}

void LuSyncEngine::wake()
{
    if (m_started && !isAsleep() && (!m_roundWaits || m_backOffMs.get() == 0))
        scheduleRound(0);
}

void LuSyncEngine::noteUserAction()
{
    if (m_started && m_backOffMs.exchange(0) > 0 && !isAsleep())
        scheduleRound(0);
    // Without a window no round would ever ask.
    lookForColorMode();
}

bool LuSyncEngine::isAsleep() const
{
    return m_model.link().isAsleep();
}

void LuSyncEngine::setAsleep(bool asleep)
{
    if (isAsleep() == asleep)
        return;
    m_model.link().setAsleep(asleep);
    if (asleep || !m_started)
        return;
    // Whatever the monitor was asked in its sleep went unheard, and its values may have changed.
    m_backOffMs = 0;
    m_model.dispatch->post(m_model.q, [this] {
        (void)m_model.syncColorMode();
        postBrightness(nullptr, Reason::FirstRound);
        postWholeRound();
    });
}

void LuSyncEngine::lookAgain()
{
    if (m_started)
        lookAgainIn(LookAgainMs, LookAgainTries);
}

void LuSyncEngine::lookAgainIn(qint64 ms, int triesLeft)
{
    m_model.dispatch->postUniqueBackgroundLater(m_model.q, LookAgainKey, ms, [this, triesLeft] {
        if (isAsleep())
            return;
        if (m_model.syncColorMode()) {
            m_backOffMs = 0;
            if (m_readWhole)
                scheduleRound(0);
            else
                postWholeRound();
        } else if (triesLeft > 1) {
            lookAgainIn(LookAgainMs, triesLeft - 1);
        }
    });
}

void LuSyncEngine::force(LuModelModuleInterface* module)
{
    m_model.dispatch->postUnique(module, QStringLiteral("forceSync"), [this, module] {
        postSteps(module, Reason::Asked);
        postBrightness(module, Reason::Asked);
    });
}

void LuSyncEngine::readBack(LuModelModuleInterface* module, std::function<void()> done)
{
    m_model.dispatch->post(m_model.q, [this, module, done = std::move(done)]() mutable {
        if (module) {
            postSteps(module, Reason::Asked);
        } else {
            if (!isAsleep())
                (void)m_model.syncColorMode();
            for (LuModelModuleInterface* each : std::as_const(m_model.modules))
                postSteps(each, Reason::Asked);
        }
        postBrightness(module, Reason::Asked);
        post(Reason::Asked, std::move(done));
    });
}
