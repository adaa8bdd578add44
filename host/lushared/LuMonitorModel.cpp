// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuMonitorModel.h>

#include "LuEventLog.h"
#include "LuHostOptions.h"
#include "LuMonitorModelPrivate.h"
#include "LuSchemaReader.h"
#include "LuSettings.h"

#include <LuShared/LuPlatformProgram.h>
#include <LuShared/LuUtils.h>
#include <panelcore/MonitorLink.h>

#include <QDebug>
#include <QFile>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

/// Modules whose change comes from another function, on this thread; nested scopes stand behind each other.
thread_local std::vector<const LuModelModuleInterface*> otherFunctionModules;

} // namespace

LuMonitorModel::LuMonitorModel(QObject* parent, QSharedPointer<MonitorInfo> info, NodeFactory nodeFactory)
    : MonitorModel(parent, std::move(info)), d(new LuMonitorModelPrivate(this, std::move(nodeFactory)))
{
    d->readColorModes();
    d->learnColorMode();
}

LuMonitorModel::~LuMonitorModel()
{
    // Modules go with the base class; no job may find them gone.
    d->dispatch->close();
}

QString LuMonitorModel::id() const
{
    return info()->id();
}

QString LuMonitorModel::serialNumber() const
{
    return d->section.mid(d->section.indexOf(QLatin1Char('_')) + 1);
}

QString LuMonitorModel::nickName() const
{
    return d->nickName.isEmpty() ? modelName() : d->nickName;
}

void LuMonitorModel::setNickName(const QString& name)
{
    if (d->nickName == name)
        return;
    d->nickName = name;
    LuSettings::instance().setValue(d->sectionKey(QStringLiteral("nickName")), name);
    Q_EMIT nickNameChanged();
}

bool LuMonitorModel::isModelSupported() const
{
    return d->supported;
}

bool LuMonitorModel::isModelBuiltIn() const
{
    return info()->isBuiltIn();
}

bool LuMonitorModel::isCurrentModel() const
{
    return d->current;
}

bool LuMonitorModel::isFirstTimeConnected() const
{
    return d->firstTime;
}

void LuMonitorModel::setFirstTimeConnected(bool firstTime)
{
    d->firstTime = firstTime;
}

LuVCPNode* LuMonitorModel::colorMode() const
{
    return d->currentNode;
}

void LuMonitorModel::setColorMode(LuVCPNode* node)
{
    const QString key = QStringLiteral("setColorMode");
    if (!node || node == d->currentNode) {
        d->dispatch->remove(this, key, false);
        return;
    }
    d->dispatch->postUniqueAtFront(this, key, [this, node] {
        qInfo() << "[LuMonitorModel] set color mode:" << node->displayName();
        if (setVCP(0xDC, node->code()))
            d->makeCurrent(node);
    });
    d->engine.noteUserAction();
}

QList<LuVCPNode*> LuMonitorModel::colorModeList() const
{
    return d->nodes;
}

LuVCPNode* LuMonitorModel::getColorModeByName(const QString& name) const
{
    const auto found = std::find_if(d->nodes.begin(), d->nodes.end(),
                                    [&name](const LuVCPNode* node) { return node->displayName() == name; });
    return found == d->nodes.end() ? nullptr : *found;
}

bool LuMonitorModel::syncCurrentColorMode() const
{
    return d->syncCurrentColorMode;
}

void LuMonitorModel::setSyncCurrentColorMode(bool enable)
{
    if (!d->syncCurrentColorMode.set(enable))
        return;
    if (enable)
        d->engine.wake();
    Q_EMIT syncCurrentColorModeChanged();
}

QVariantMap LuMonitorModel::statistics() const
{
    return d->link().statistics().toVariantMap();
}

QList<LuShortcutAction*> LuMonitorModel::shortcutActions() const
{
    return d->shortcutActions;
}

QList<LuFlowAction*> LuMonitorModel::flowActions() const
{
    return d->flowActions;
}

QList<LuFlowAction*> LuMonitorModel::flowActions(const QString& flowId) const
{
    QList<LuFlowAction*> result;
    std::copy_if(d->flowActions.begin(), d->flowActions.end(), std::back_inserter(result),
                 [&flowId](const LuFlowAction* action) { return action->modeId() == flowId; });
    return result;
}

bool LuMonitorModel::registerFlowAction(const QString& flowId, LuActionInterface::ActionTitle title,
                                        LuModelModuleInterface* module, const QVariantMap& properties)
{
    if (!d->modules.contains(module))
        return false;
    const auto same =
        std::find_if(d->flowActions.begin(), d->flowActions.end(), [&](const LuFlowAction* action) {
            return action->modeId() == flowId && action->title() == title;
        });
    if (same != d->flowActions.end()) {
        (*same)->deleteLater();
        d->flowActions.erase(same);
    }
    auto* action = new LuFlowAction(flowId, title, module, properties, this);
    d->flowActions.append(action);
    Q_EMIT flowActionRegistered(action);
    return true;
}

void LuMonitorModel::unregisterFlowActions(const QString& flowId, LuModelModuleInterface* module)
{
    const QList<LuFlowAction*> actions = flowActions(flowId);
    for (LuFlowAction* action : actions) {
        if (action->module() != module)
            continue;
        d->flowActions.removeOne(action);
        action->deleteLater();
        Q_EMIT flowActionUnregistered(flowId, action->title());
    }
    if (!actions.isEmpty() && flowActions(flowId).isEmpty())
        Q_EMIT flowActionCleared(flowId);
}

bool LuMonitorModel::inWidgets(const QString& widgetName) const
{
    return LuMonitorModelPrivate::packageWidgets().value(LuUtils::packageName(this)).contains(widgetName);
}

QList<LuModelModuleInterface*> LuMonitorModel::modules() const
{
    return d->modules;
}

LuModelModuleInterface* LuMonitorModel::moduleByClassName(const QString& className) const
{
    const auto found =
        std::find_if(d->modules.begin(), d->modules.end(),
                     [&](LuModelModuleInterface* module) { return LuUtils::className(module) == className; });
    return found == d->modules.end() ? nullptr : *found;
}

bool LuMonitorModel::ecoLockingPaused() const
{
    return d->ecoLockingPaused;
}

void LuMonitorModel::setEcoLockingPaused(bool paused)
{
    if (d->ecoLockingPaused.set(paused))
        Q_EMIT ecoLockingPausedChanged();
}

bool LuMonitorModel::isHDR() const
{
    const LuVCPNode* node = d->currentNode;
    return node && node->isHdr();
}

void LuMonitorModel::setIsHDR(bool on)
{
    if (!isHDREnable()) {
        if (on)
            qWarning().noquote() << "[LuMonitorModel] no high dynamic range to switch to:" << id();
        return;
    }
    LuVCPNode* present = d->currentNode;
    if (on == isHDR())
        setColorMode(present); // Drops a switch that still waits.
    else if (on)
        setColorMode(d->firstNode(true));
    else
        setColorMode(d->lastSdrNode ? d->lastSdrNode.get() : d->firstNode(false));
}

bool LuMonitorModel::isHDREnable() const
{
    return d->firstNode(true) && d->firstNode(false);
}

bool LuMonitorModel::isMirrored() const
{
    return false;
}

QObject* LuMonitorModel::scenario() const
{
    return nullptr;
}

QObject* LuMonitorModel::iccSync() const
{
    return nullptr;
}

QObject* LuMonitorModel::smartKvm() const
{
    return nullptr;
}

LuVCPNode* LuMonitorModel::currentDualMode() const
{
    return nullptr;
}

bool LuMonitorModel::isOtherFunctionTrigger(LuModelModuleInterface* module) const
{
    return std::find(otherFunctionModules.begin(), otherFunctionModules.end(), module) !=
           otherFunctionModules.end();
}

LuMonitorModel::OtherFunctionScope::OtherFunctionScope(LuModelModuleInterface* module) : m_module(module)
{
    otherFunctionModules.push_back(m_module);
}

LuMonitorModel::OtherFunctionScope::~OtherFunctionScope()
{
    otherFunctionModules.pop_back();
}

void LuMonitorModel::setSkipApplyValuesWithLaunchTime(LuModelModuleInterface* module, const bool& skip)
{
    module->markSkipped(skip);
    d->setSkipped(LuUtils::className(module), skip);
}

void LuMonitorModel::registerForceSyncPairs(QObject* sender, const QMetaMethod& signal,
                                            const QString& moduleClassName)
{
    d->forceSync.add(sender, signal, moduleClassName);
}

QSharedPointer<ZrDispatch> LuMonitorModel::dispatch() const
{
    return d->dispatch;
}

bool LuMonitorModel::openResolutionSettings()
{
    // The display settings of the common desktops; the first that starts is taken.
    static const QStringList programs{
        QStringLiteral("gnome-display-panel.desktop"),
        QStringLiteral("kcm_kscreen.desktop"),
        QStringLiteral("xfce-display-settings.desktop"),
        QStringLiteral("lxqt-config-monitor.desktop"),
        QStringLiteral("arandr.desktop"),
    };
    return std::any_of(programs.begin(), programs.end(), [](const QString& program) {
        return LuPlatformProgram::instance()->openApplication(program);
    });
}

bool LuMonitorModel::openFocusAssist()
{
    return LuPlatformProgram::instance()->openApplication(
        QStringLiteral("gnome-notifications-panel.desktop"));
}

void LuMonitorModel::resetCurrentColorMode()
{
    d->dispatch->postUniqueAtFront(this, QStringLiteral("resetCurrentColorMode"), [this] {
        qInfo() << "[LuMonitorModel] reset color mode";
        if (!setVCP(0x08, 1))
            return;
        for (LuModelModuleInterface* module : std::as_const(d->modules))
            d->engine.force(module);
    });
    d->engine.noteUserAction();
}

void LuMonitorModel::fireHdrChangedEvent(bool state, LuDataCollection::TriggerSource source)
{
    LuEvent event;
    event.monitor = id();
    event.action = LuDataCollection::ACT_HDR;
    event.onOff = true;
    event.on = state;
    event.source = source;
    LuEventLog::instance().record(std::move(event));
}

void LuMonitorModel::readModuleSchemaExt()
{
    // A monitor without a schema has no features but those that need none: its modules decide on an empty
    // one.
    LuSchemaReader::Result schema;
    if (d->supported)
        schema = LuSchemaReader::readFile(d->schemaPath(QStringLiteral("_ext")));
    if (!schema.problem.isEmpty())
        qWarning().noquote() << "[LuMonitorModel] features behind the damage are absent:" << schema.problem;
    for (LuModelModuleInterface* module : std::as_const(d->modules))
        module->readSchema(schema.bytes);
}

void LuMonitorModel::registerModuleShortcuts()
{
    for (LuModelModuleInterface* module : std::as_const(d->modules))
        module->registerShortcutActions();
}

bool LuMonitorModel::loadSettingsEnabled() const
{
    return LuHostOptions::instance().loadSettings;
}

void LuMonitorModel::loadModuleSettings()
{
    for (LuModelModuleInterface* module : std::as_const(d->modules))
        module->loadSettings();
}

void LuMonitorModel::initForceSyncConnections()
{
    d->forceSync.connectAll([this](const QString& className) {
        if (LuModelModuleInterface* module = moduleByClassName(className))
            module->onForceSyncRequested();
    });
}

void LuMonitorModel::readVcpDelays()
{
    // One table for a series: the series stands in front of "MonitorModel" in the class name.
    const QString series =
        QString::fromLatin1(metaObject()->className()).remove(QStringLiteral("MonitorModel"));
    QFile file(LuUtils::schemaFile(QStringLiteral(":/schema/%1_vcpDelay.xml").arg(series)));
    if (!file.open(QIODevice::ReadOnly))
        return;
    QXmlStreamReader reader(&file);
    QHash<int, int> ofPackage;
    QHash<int, int> ofModel;
    QHash<int, int>* scope = nullptr;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        if (reader.name() == QLatin1String("Package"))
            scope = attributes.value(QLatin1String("Name")) == series ? &ofPackage : nullptr;
        else if (reader.name() == QLatin1String("Model"))
            scope = attributes.value(QLatin1String("Name")) == modelName() ? &ofModel : nullptr;
        else if (reader.name() == QLatin1String("Entry") && scope) {
            const int code = LuSchemaReader::hexByte(attributes.value(QLatin1String("VcpCode")));
            const int delay = attributes.value(QLatin1String("Delay")).toInt();
            if (code >= 0 && delay > 0)
                scope->insert(code, delay);
        }
    }
    if (reader.hasError())
        qWarning().noquote() << "[LuMonitorModel] delay table:" << file.fileName() << "line"
                             << reader.lineNumber() << reader.errorString();
    // What is said of one model goes before what is said of all.
    ofPackage.insert(ofModel);
    d->link().setWriteDelays(ofPackage);
}

bool LuMonitorModel::autoSyncEnabled() const
{
    return LuHostOptions::instance().autoSync;
}

void LuMonitorModel::checkFirstConnected(const QString& version)
{
    // Booked when it has been read: what was never read must not be restored at the next launch.
    d->metBefore = d->isMetBefore(version);
    d->restoring = d->mustRestore();
    d->metVersion = version;
    d->firstTime = !d->metBefore;
}

void LuMonitorModel::initialSync()
{
    // A monitor whose values are restored is read after them: see LuModelHost::launch().
    if (!d->restoring)
        d->runInitialSync();
}

void LuMonitorModel::syncMonitorPeriodically()
{
    if (!d->restoring)
        d->engine.start();
}

bool LuMonitorModel::attributeConditionCheck(const QXmlStreamAttributes&)
{
    return true;
}
