// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuDataCollection.h>
#include <LuShared/LuSharedGlobal.h>
#include <LuShared/LuShortcutAction.h>
#include <LuShared/LuSyncTasks.h>
#include <ZrCore/ZrShared.h>

#include <QDebug>
#include <QHash>
#include <QKeyCombination>
#include <QObject>
#include <QSet>
#include <QSharedPointer>
#include <QString>
#include <QVariant>

#include <functional>
#include <memory>
#include <type_traits>

class LuMonitorModel;
class MonitorInfo;
class QKeyEvent;
class ZrDispatch;

/// Base of every feature of a monitor: one module owns one feature's VCP codes, settings, read-back and
/// events.
///
/// A module belongs to its model and lives on the GUI thread. Its members mirror the hardware: setter jobs
/// and sync tasks write them on the model's queue, getters read them on the GUI thread and never touch the
/// hardware (see ZrShared for members that both sides use). Changed signals may be emitted on the queue's
/// thread.
class LUSHARED_EXPORT LuModelModuleInterface : public QObject
{
    Q_OBJECT
    /// The panel binds it to "this monitor is shown and the window is visible": only then is the feature read
    /// back.
    Q_PROPERTY(bool syncEnable READ syncEnable WRITE setSyncEnable NOTIFY syncEnableChanged)

public:
    explicit LuModelModuleInterface(LuMonitorModel* model);
    ~LuModelModuleInterface() override;

    // The order of these operations is part of the binary interface.

    /// Reads the enable flag and the options of the feature; the one place where the schema is seen. GUI
    /// thread.
    virtual void readSchema(const QByteArray& schema) = 0;

    /// One-shot step of the initial sync for state that no VCP task brings. GUI thread.
    virtual void onInitialSync();

    /// Builds the read-back steps of one period, or returns null when there is nothing to read now. The
    /// caller owns the result. Queue or GUI thread.
    virtual LuSyncTasks* syncPeriodically() = 0;

    /// Fills the members from the settings. GUI thread, during construction of the model.
    virtual void loadSettings();

    /// Writes the restored values to the monitor at launch. Queue.
    virtual void applyValues();

    /// Registers the handlers of the feature's shortcuts. GUI thread.
    virtual void registerShortcutActions();

    /// Another part of the monitor changed in a way that this feature depends on: its sync tasks are run now.
    /// An override calls the base last. Any thread.
    virtual void onForceSyncRequested();

    /// A detail page closes: @p parameters holds the values at its opening. GUI thread.
    virtual void onFireUpdateSettingEventRequested(const QHash<QString, QVariant>& parameters,
                                                   LuDataCollection::TriggerSource source);

    /// The application ends: reports an active feature as off. GUI thread.
    virtual void fireExitEvent();

    /// The strings that go with the feature's events.
    virtual QList<QString> parametersStrings() const;

    bool syncEnable() const;
    void setSyncEnable(bool enable);

    /// Binds an action of the shortcut table to this module. GUI thread.
    void registerShortcutAction(LuShortcutAction::ActionName name,
                                std::function<bool(const QKeyEvent&)> handler);

    /// Binds the key combinations of an action; an empty set removes them. GUI thread.
    void registerShortcutKeys(LuShortcutAction::ActionName name, const QSet<QKeyCombination>& keys);

    /// Withdraws the actions that this module has in the flow @p id. GUI thread.
    void unregisterFlowAction(const QString& id);

    /// Reports that the feature went on or off. Any thread.
    void fireOnOffEvent(LuDataCollection::Action action, bool on, LuDataCollection::TriggerSource source,
                        const QList<QString>& parameters);

    /// Reports a named event. Any thread.
    Q_INVOKABLE void fireCustomEvent(LuDataCollection::Action action, const QString& event,
                                     LuDataCollection::TriggerSource source,
                                     const QList<QString>& parameters = {});

    /// Asks the model to run this module's sync tasks now instead of at the next period. With @p initial the
    /// initial sync step runs before them. Any thread.
    void forceSyncHardwareState(bool initial);

    /// Records the module's properties, as a detail page opens.
    Q_INVOKABLE void takePropertySnapshot();

    /// Hands the recorded values to onFireUpdateSettingEventRequested(), as the page closes, so that one
    /// visit gives one event. Without a snapshot nothing happens.
    Q_INVOKABLE void fireUpdateSettingEvent();

Q_SIGNALS:
    void syncEnableChanged();

protected:
    LuMonitorModel* model() const;

    /// Reads a VCP code of this monitor; false if the transfer failed, @p value is then untouched. Blocks.
    bool getVCP(int code, int& value);

    /// Writes a VCP code of this monitor and honours the model's delay table; true if the write went out.
    /// Blocks.
    bool setVCP(int code, int value);

    /// As setVCP(), for a setter that writes on its caller's thread: @p outOfTime tells that the GUI thread
    /// gave up before the monitor could be asked (MonitorModel::setVCP()).
    bool setVCP(int code, int value, bool& outOfTime);

    /// Puts a job in front of all background work of the model's queue, behind earlier front jobs. A job that
    /// still waits with the same context and key is replaced.
    void postUniqueAtFront(QObject* context, const QString& key, std::function<void()>&& job);

    /// The model's serial queue.
    QSharedPointer<ZrDispatch> dispatch() const;

    /// The monitor's handle, for the operations of LuPlatform.
    QSharedPointer<MonitorInfo> handler() const;

    /// Persisted settings of this module for this monitor. Any thread.
    QVariant moduleSetting(const QString& key, const QVariant& defaultValue) const;
    void setModuleSetting(const QString& key, const QVariant& value);
    bool hasModuleSetting(const QString& key) const;

    /// Settings of the monitor outside any module's section. Any thread.
    QVariant monitorSetting(const QString& key, const QVariant& defaultValue) const;
    bool hasMonitorSetting(const QString& key) const;
    void removeMonitorSetting(const QString& key);

    /// Name of this module's section in the settings store.
    QString settingSection() const;

    /// Schema readers. A category that the schema lacks leaves @p result as it was; the on/off reader then
    /// returns false. A damaged schema yields what stands in front of the damage.
    bool loadVCPFunctionOnOffByCategory(const QByteArray& schema, const QString& category);
    void loadVCPFunctionsOnOffByCategory(const QByteArray& schema, const QString& category,
                                         QHash<QString, bool>& result);
    /// The types of the entries of the category that are on, in schema order.
    QList<QString> loadVCPFunctionTypesByCategory(const QByteArray& schema, const QString& category);
    bool loadVCPFunctionStringByCategory(const QByteArray& schema, const QString& category, QString& result);
    bool loadVCPFunctionValueByCategory(const QByteArray& schema, const QString& category, int& result);

    // The setter pattern and the sync pattern, each written once.

    /// Whether a setter has nothing to do: @p value is the member's and no job of @p key is on its way to
    /// another one. An older job of the key that still waits is dropped then, since the last word wins.
    template <class T>
    bool isSettled(const QString& key, const ZrShared<T>& member, const std::type_identity_t<T>& value)
    {
        // In this order: a job that ends between the two has stored what it brings.
        return !isChanging(key) && member == value;
    }

    /// Whether a job of @p key runs at this moment; a job that only waits is dropped.
    bool isChanging(const QString& key);

    /// The job of a setter: tells the change as "@p text value", stores the member, lets @p write reach the
    /// monitor, keeps the setting, and emits @p changed where the member was another. Queue.
    template <class T, class Module, class Write>
    void takeAsked(ZrShared<T>& member, const std::type_identity_t<T>& value, const QString& setting,
                   const char* text, void (Module::*changed)(), Write write)
    {
        qInfo() << text << value;
        const bool differs = member.set(value);
        write();
        setModuleSetting(setting, storable(value));
        if (differs)
            (static_cast<Module*>(this)->*changed)();
    }

    /// What a read-back found: where it differs from the member, stores it, keeps the setting (none if
    /// @p setting is empty), tells it as "@p text value" and emits @p changed. Returns whether it differed.
    /// Queue.
    template <class T, class Module>
    bool takeReported(ZrShared<T>& member, const std::type_identity_t<T>& value, const QString& setting,
                      const char* text, void (Module::*changed)())
    {
        if (!member.set(value))
            return false;
        if (!setting.isEmpty())
            setModuleSetting(setting, storable(value));
        qInfo() << text << value;
        (static_cast<Module*>(this)->*changed)();
        return true;
    }

    /// As takeReported(), for a value that every colour mode has of its own: what a mode is found with is
    /// kept also where it is what the member held in the mode before. Otherwise a launch in that mode would
    /// restore what the member begins with. Queue.
    template <class T, class Module>
    bool takeReportedOfMode(ZrShared<T>& member, const std::type_identity_t<T>& value, const QString& setting,
                            const char* text, void (Module::*changed)())
    {
        if (takeReported(member, value, setting, text, changed))
            return true;
        if (!hasModuleSetting(setting))
            setModuleSetting(setting, storable(value));
        return false;
    }

    /// The current colour mode allows a function: there is a mode and @p accessor of its node says
    /// FunctionOn.
    template <class Accessor>
    bool colorModeAllows(Accessor accessor) const;

private:
    /// Enumerations are stored as their numbers.
    template <class T>
    static QVariant storable(const T& value)
    {
        if constexpr (std::is_enum_v<T>)
            return QVariant(int(value));
        else
            return QVariant(value);
    }

    friend class LuMonitorModel;
    friend class LuModelHost;
    void markSkipped(bool skip);
    struct Private;
    std::unique_ptr<Private> d;
};
