// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuMonitorModel.h>
#include <LuShared/LuSharedGlobal.h>

#include <QHash>
#include <QJsonObject>
#include <QStringList>
#include <QVariantMap>

#include <functional>
#include <optional>

/// What the application does with a model and a package never does. GUI thread.
class LUSHARED_EXPORT LuModelHost
{
public:
    LuModelHost() = delete;

    /// Ends the construction of a model that was met before: applies the stored values if they are to be
    /// restored, then runs the initial sync and starts the periodic read-back. Called once, right after the
    /// constructor.
    static void launch(LuMonitorModel* model);

    /// Runs applyValues of all modules in their order as one job, skip marks aside. @p done is called on the
    /// GUI thread when it has run.
    static void apply(LuMonitorModel* model, std::function<void()> done);

    /// Reads one module back, or the colour mode and then all modules, whatever syncEnable says. @p done is
    /// called on the GUI thread when the last step has run.
    static void sync(LuMonitorModel* model, LuModelModuleInterface* module, std::function<void()> done);

    /// Asks a monitor that may give no answer for a moment until it answers, then begins a round.
    static void lookAgain(LuMonitorModel* model);

    /// Writes properties to a module as another function of the program. An empty result: done; else what was
    /// wrong.
    static QString trigger(LuModelModuleInterface* module, const QVariantMap& properties);

    /// Whether auto sync and loading of settings hold, and the class names of the modules that skip the
    /// launch.
    static bool autoSyncEnabled(const LuMonitorModel* model);
    static bool loadSettingsEnabled(const LuMonitorModel* model);
    static QStringList skippedModules(const LuMonitorModel* model);

    /// Number of read-back steps that the module asks for now; empty if it asks for none.
    static std::optional<int> syncTaskCount(LuModelModuleInterface* module);

    /// Transfers, retries, errors, learnt waits, writes per code and day.
    static QJsonObject statistics(const LuMonitorModel* model);

    /// The display was switched off by power management, or on again: it is asked nothing while it sleeps,
    /// and read when it wakes; nothing is applied.
    static void setAsleep(LuMonitorModel* model, bool asleep);
    /// Something happened at the outputs: a monitor that gave no answer is tried again now.
    static void noteDisturbance(LuMonitorModel* model);

    /// Section of the monitor in the settings store, and of one module in it.
    static QString monitorSection(const LuMonitorModel* model);
    static QString moduleSection(const LuModelModuleInterface* module);

    /// The next launch meets the monitor for the first time; its settings stay.
    static void forgetFirstConnection(LuMonitorModel* model);

    /// Lets the model take a press: the shortcut actions with these keys are asked in their order. True if
    /// one took it.
    static bool handleKey(LuMonitorModel* model, Qt::KeyboardModifiers modifiers, Qt::Key key, bool repeated);

    /// Reports every active feature as off, as the application ends.
    static void fireExitEvents(LuMonitorModel* model);

    static void setCurrent(LuMonitorModel* model, bool current);
};
