// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuDataCollection.h>
#include <LuShared/LuFlowAction.h>
#include <LuShared/LuModelModuleInterface.h>
#include <LuShared/LuSharedGlobal.h>
#include <LuShared/LuShortcutAction.h>
#include <LuShared/LuVCPNode.h>
#include <PanelCore/MonitorModel.h>

#include <QList>
#include <QMetaMethod>
#include <QSharedPointer>
#include <QString>
#include <QVariantMap>
#include <QXmlStreamAttributes>

#include <functional>
#include <memory>

class LuModelHost;
class LuMonitorModelPrivate;
class ZrDispatch;

/// One connected monitor with its colour modes and feature modules, as panels and scripts see it.
///
/// Lives on the GUI thread; owns its modules, its nodes and the serial queue on which the work of the monitor
/// runs. The package's subclass creates the modules in its constructor and then calls the protected steps in
/// their order.
class LUSHARED_EXPORT LuMonitorModel : public MonitorModel
{
    Q_OBJECT
    Q_PROPERTY(QString id READ id CONSTANT)
    Q_PROPERTY(QString serialNumber READ serialNumber CONSTANT)
    Q_PROPERTY(QString nickName READ nickName WRITE setNickName NOTIFY nickNameChanged)
    Q_PROPERTY(bool isModelSupported READ isModelSupported CONSTANT)
    Q_PROPERTY(bool isModelBuiltIn READ isModelBuiltIn CONSTANT)
    Q_PROPERTY(bool isCurrentModel READ isCurrentModel NOTIFY isCurrentModelChanged)
    Q_PROPERTY(bool isFirstTimeConnected READ isFirstTimeConnected STORED false)
    Q_PROPERTY(LuVCPNode* colorMode READ colorMode WRITE setColorMode NOTIFY colorModeChanged)
    Q_PROPERTY(QList<LuVCPNode*> colorModeList READ colorModeList CONSTANT)
    /// As a module's syncEnable, for the colour mode itself.
    Q_PROPERTY(bool syncCurrentColorMode READ syncCurrentColorMode WRITE setSyncCurrentColorMode NOTIFY
                   syncCurrentColorModeChanged)
    Q_PROPERTY(
        bool ecoLockingPaused READ ecoLockingPaused WRITE setEcoLockingPaused NOTIFY ecoLockingPausedChanged)
    /// The monitor shows a colour mode of high dynamic range. Setting it selects the first mode of that kind,
    /// or leads back to the mode before; nothing happens on a monitor that lacks one of the two.
    Q_PROPERTY(bool isHDR READ isHDR WRITE setIsHDR NOTIFY isHDRChanged)
    /// The monitor has modes of both kinds.
    Q_PROPERTY(bool isHDREnable READ isHDREnable NOTIFY isHDREnableChanged)
    Q_PROPERTY(bool isMirrored READ isMirrored NOTIFY isMirroredChanged)
    /// Parts that a package may lack: null then.
    Q_PROPERTY(QObject* scenario READ scenario CONSTANT)
    Q_PROPERTY(QObject* iccSync READ iccSync CONSTANT)
    Q_PROPERTY(QObject* smartKvm READ smartKvm CONSTANT)
    Q_PROPERTY(LuVCPNode* currentDualMode READ currentDualMode NOTIFY currentDualModeChanged)
    /// What went over the monitor's bus; taken anew at each read, so nothing announces a change.
    Q_PROPERTY(QVariantMap statistics READ statistics STORED false)

public:
    using NodeFactory =
        std::function<VCPNode*(QObject*, int, int, const QString&, const QString&, const QString&)>;

    /// @param nodeFactory makes one colour-mode node of the schema; the model owns the result.
    LuMonitorModel(QObject* parent, QSharedPointer<MonitorInfo> info, NodeFactory nodeFactory);
    ~LuMonitorModel() override;

    QString id() const;
    /// The monitor's serial number as an identifier that may stand in a path; empty if it has none.
    QString serialNumber() const;
    /// The user's name for the monitor; the model name until one is given.
    QString nickName() const;
    void setNickName(const QString& name);

    /// A schema of the package describes this model, and it could be read.
    bool isModelSupported() const;
    /// The monitor is the panel built into a notebook.
    bool isModelBuiltIn() const;
    /// This monitor is the one that the window shows.
    bool isCurrentModel() const;
    /// True only while a monitor that is met for the first time is being constructed.
    bool isFirstTimeConnected() const;
    void setFirstTimeConnected(bool firstTime);

    /// Node of the current picture mode; null if the monitor reports none that the schema has. Any thread.
    LuVCPNode* colorMode() const;
    /// Posts a job that writes the mode and makes the node current once the monitor took it. The present node
    /// and null do nothing.
    void setColorMode(LuVCPNode* node);
    /// All nodes in schema order.
    QList<LuVCPNode*> colorModeList() const;
    /// The node whose displayName() is @p name, or null.
    LuVCPNode* getColorModeByName(const QString& name) const;

    bool syncCurrentColorMode() const;
    void setSyncCurrentColorMode(bool enable);

    /// Transfers, retries, errors, learnt waits, writes per code and day. Any thread.
    QVariantMap statistics() const;

    /// The shortcut actions in the order of their registration.
    QList<LuShortcutAction*> shortcutActions() const;
    /// All flow actions, or those of one flow.
    QList<LuFlowAction*> flowActions() const;
    QList<LuFlowAction*> flowActions(const QString& flowId) const;
    /// Stores an action of a flow; it replaces one of the same flow and title. False if the module is not
    /// this model's.
    bool registerFlowAction(const QString& flowId, LuActionInterface::ActionTitle title,
                            LuModelModuleInterface* module, const QVariantMap& properties);
    void unregisterFlowActions(const QString& flowId, LuModelModuleInterface* module);

    /// Whether this run reads monitors back by itself. Any thread.
    bool autoSyncEnabled() const;

    /// Whether the widget of that name, such as "LuVolumeWidget", stands in the package's list.
    bool inWidgets(const QString& widgetName) const;
    /// All modules in the order of their construction.
    QList<LuModelModuleInterface*> modules() const;
    LuModelModuleInterface* moduleByClassName(const QString& className) const;

    bool ecoLockingPaused() const;
    void setEcoLockingPaused(bool paused);

    bool isHDR() const;
    void setIsHDR(bool on);
    bool isHDREnable() const;
    bool isMirrored() const;
    virtual QObject* scenario() const;
    virtual QObject* iccSync() const;
    virtual QObject* smartKvm() const;
    virtual LuVCPNode* currentDualMode() const;

    /// True while the present change of @p module, on the calling thread, comes from another function.
    bool isOtherFunctionTrigger(LuModelModuleInterface* module) const;
    /// Marks (or unmarks) a module so that the next launch does not apply its values. Kept in the settings;
    /// the module's next setting clears the mark.
    void setSkipApplyValuesWithLaunchTime(LuModelModuleInterface* module, const bool& skip);

    /// Lets the module of that class name sync at once whenever @p sender emits @p signal. Pairs that are
    /// registered after initForceSyncConnections() stay unconnected.
    void registerForceSyncPairs(QObject* sender, const QMetaMethod& signal, const QString& moduleClassName);

    /// The serial queue of this monitor.
    QSharedPointer<ZrDispatch> dispatch() const;

    /// Opens the desktop's display settings; false if none could be started.
    Q_INVOKABLE bool openResolutionSettings();
    /// Opens the desktop's focus or do-not-disturb settings; false where the system has none.
    Q_INVOKABLE bool openFocusAssist();
    /// Puts the current colour mode back to its factory values (VCP 0x08, MCCS 2.2), then reads everything
    /// back.
    Q_INVOKABLE void resetCurrentColorMode();
    Q_INVOKABLE void fireHdrChangedEvent(bool state, LuDataCollection::TriggerSource source);

    /// Marks, for the calling thread and the life of the object, that a change of a module comes from another
    /// function of the program.
    class LUSHARED_EXPORT OtherFunctionScope
    {
    public:
        explicit OtherFunctionScope(LuModelModuleInterface* module);
        ~OtherFunctionScope();
        OtherFunctionScope(const OtherFunctionScope&) = delete;
        OtherFunctionScope& operator=(const OtherFunctionScope&) = delete;

    private:
        LuModelModuleInterface* m_module;
    };

Q_SIGNALS:
    void nickNameChanged();
    void isCurrentModelChanged();
    void colorModeChanged();
    void syncCurrentColorModeChanged();
    void ecoLockingPausedChanged();
    void isHDRChanged();
    void isHDREnableChanged();
    void isMirroredChanged();
    void currentDualModeChanged();
    void flowActionRegistered(LuFlowAction* action);
    void flowActionUnregistered(const QString& flowId, LuActionInterface::ActionTitle title);
    void flowActionCleared(const QString& flowId);

protected:
    // The steps of a model's construction, in their order.
    void readModuleSchemaExt();
    void registerModuleShortcuts();
    bool loadSettingsEnabled() const;
    void loadModuleSettings();
    void initForceSyncConnections();
    void readVcpDelays();
    /// Decides whether this monitor is new to this version of the package.
    void checkFirstConnected(const QString& version);
    void initialSync();
    void syncMonitorPeriodically();

    /// Decides whether a schema entry applies to this monitor. The base accepts every entry.
    virtual bool attributeConditionCheck(const QXmlStreamAttributes& attributes);

private:
    friend class LuModelHost;
    friend class LuModelModuleInterface;
    friend class LuMonitorModelPrivate;
    std::unique_ptr<LuMonitorModelPrivate> d;
};

template <class Accessor>
bool LuModelModuleInterface::colorModeAllows(Accessor accessor) const
{
    const LuVCPNode* node = model()->colorMode();
    return node && (node->*accessor)() == VCPNode::FunctionOn;
}
