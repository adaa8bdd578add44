// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <vector>

#include <ZrCore/ZrShared.h>

#include <QtGlobal>

class LuModelModuleInterface;
class LuMonitorModelPrivate;

/// Reads a monitor's features back: in periodic rounds while somebody looks, at once where a change asks for
/// it.
///
/// Every step is a job of its own behind what waits on the model's queue, so that a setter waits for one step
/// at most. A monitor that gives no answer is asked again after 2, 4, 8 ... 60 s, or at once after a user's
/// action. A display that sleeps is asked nothing; when it wakes, everything is read once.
///
/// A monitor that no package serves gives its modules nothing to read. Its brightness, which the application
/// offers as that of the operating system, is read here in the rounds of whoever shows it.
class LuSyncEngine
{
public:
    explicit LuSyncEngine(LuMonitorModelPrivate& model) : m_model(model) {}

    /// First round: asks every module for its steps now, on the caller's thread, and posts them; periodic
    /// rounds follow. A monitor that has not told its colour mode is asked again for a while: many give no
    /// answer in the first seconds after they were switched on or plugged in.
    void start();

    /// A feature became visible: a round begins at once. Any thread.
    void wake();

    /// The user did something: a monitor that gave no answer is tried again now. Any thread.
    void noteUserAction();

    /// Something happened at the outputs: as noteUserAction(). Any thread.
    void noteDisturbance() { noteUserAction(); }

    /// The display fell asleep: rounds rest. It woke: everything is read once, and rounds go on. Any thread.
    void setAsleep(bool asleep);

    /// Something was written after which a monitor may give no answer for a moment: asks it until it answers,
    /// then begins a round. Any thread.
    void lookAgain();

    /// Reads one module back as soon as what waits has run; requests that wait are one. Any thread.
    void force(LuModelModuleInterface* module);

    /// Reads one module, or the colour mode and every module, whatever is visible; then calls @p done on the
    /// queue.
    void readBack(LuModelModuleInterface* module, std::function<void()> done);

private:
    /// Why a step runs.
    enum class Reason {
        Asked, ///< Somebody wants to know: it is tried even on a silent monitor, and counts for idleness.
        FirstRound, ///< Counts for idleness; given up on a silent monitor.
        Periodic,   ///< Does not count for idleness; given up on a silent monitor.
    };
    void post(Reason reason, std::function<void()> job);
    /// Asks a module for its steps and posts them.
    void postSteps(LuModelModuleInterface* module, Reason reason);
    void runStep(const std::function<void()>& step, Reason reason);
    /// Reads what the application itself follows for a module: the brightness of a monitor that no package
    /// serves. A null module stands for all.
    void postBrightness(LuModelModuleInterface* module, Reason reason);
    /// Asks a monitor that has never told its colour mode once more, for a while.
    void lookForColorMode();
    void runRound();
    /// Reads every module, whatever is visible.
    void postWholeRound();
    void endWholeRound();
    void endRound();
    void scheduleRound(qint64 ms);
    bool isAsleep() const;
    void lookAgainIn(qint64 ms, int triesLeft);

    LuMonitorModelPrivate& m_model;
    ZrShared<bool> m_started{false};
    ZrShared<bool> m_readWhole{false}; ///< A whole round has found the monitor answering.
    ZrShared<bool> m_roundWaits{false};
    ZrShared<qint64> m_backOffMs{0};
};
