// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuMonitorModel.h>
#include <ZrCore/ZrDispatch.h>
#include <ZrCore/ZrShared.h>

#include "LuForceSync.h"
#include "LuSyncEngine.h"

#include <QHash>
#include <QStringList>

class MonitorLink;

/// What a model holds for the host.
class LuMonitorModelPrivate
{
public:
    LuMonitorModelPrivate(LuMonitorModel* model, LuMonitorModel::NodeFactory factory);
    ~LuMonitorModelPrivate();

    static LuMonitorModelPrivate& of(LuMonitorModel* model) { return *model->d; }
    static const LuMonitorModelPrivate& of(const LuMonitorModel* model) { return *model->d; }

    MonitorLink& link() const;
    /// Path of one of the model's schema files; empty for a name that no file can have.
    QString schemaPath(const QString& suffix) const;
    void readColorModes();
    void learnColorMode();
    /// Reads 0xDC and makes its node current; the first step of a round. False if the monitor did not answer.
    /// Queue.
    bool syncColorMode();
    void makeCurrent(LuVCPNode* node);
    LuVCPNode* nodeOfCode(int code) const;
    /// The first mode with or without a high dynamic range, or null.
    LuVCPNode* firstNode(bool hdr) const;
    /// Takes a node as the present one; true if it is another.
    bool takeNode(LuVCPNode* node);
    QList<LuShortcutAction*> actionsWithKey(QKeyCombination keys) const;
    void refreshDuplicates();
    /// Whether the stored values are to be applied before anything is read. Never to a monitor that has not
    /// told its colour mode, since nobody knows which values are its own then.
    bool mustRestore() const;
    bool isMetBefore(const QString& version) const;
    /// The next launch meets the monitor for the first time.
    void forgetMeeting();
    /// The monitor has been read: the next launch meets it again. Any thread.
    void noteMet();
    void runInitialSync();
    QString sectionKey(const QString& key) const { return section + QLatin1Char('/') + key; }
    QStringList skippedModules() const;
    void setSkipped(const QString& className, bool skip);

    LuMonitorModel* q;
    LuMonitorModel::NodeFactory nodeFactory;
    QSharedPointer<ZrDispatch> dispatch;
    QString section;
    QList<LuVCPNode*> nodes;
    ZrShared<LuVCPNode*> currentNode{nullptr};
    ZrShared<LuVCPNode*> lastSdrNode{nullptr}; ///< Where the end of a high dynamic range leads back to.
    QList<LuModelModuleInterface*> modules;
    QList<LuShortcutAction*> shortcutActions;
    QList<LuFlowAction*> flowActions;
    LuForceSync forceSync;
    LuSyncEngine engine;
    QString nickName;
    bool supported = false;
    bool current = false;
    bool firstTime = false;
    bool metBefore = false;
    bool restoring =
        false; ///< mustRestore() at the construction; an answer that comes later changes nothing.
    ZrShared<QString> metVersion; ///< What noteMet() books; empty: nothing.
    ZrShared<bool> hasToldColorMode{false};
    ZrShared<bool> syncCurrentColorMode{false};
    ZrShared<bool> ecoLockingPaused{false};

    /// Names of widget files by package name, filled by the registry before the first model.
    static QHash<QString, QStringList>& packageWidgets();
};
