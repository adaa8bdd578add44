// SPDX-License-Identifier: Apache-2.0
#include "LuDualView.h"

#include <LuShared/LuMonitorModel.h>

#include <QDebug>

#include <algorithm>

namespace {

constexpr int DualViewCode = 0xF4;
constexpr int ModeShift = 8;
constexpr int OnFlag = 1;
constexpr int ByteMask = 0xFF;

const QString StateKey = QStringLiteral("state");
const QString ModeKey = QStringLiteral("mode");

int dualViewValue(bool state, const LuVCPNode* node)
{
    return state && node ? (node->code() & ByteMask) << ModeShift | OnFlag : 0;
}

} // namespace

LuDualView::LuDualView(LuMonitorModel* model) : LuModelModuleInterface(model)
{
    // Direct: the mode changes on the monitor's queue, and the event belongs to that moment.
    connect(
        model, &LuMonitorModel::colorModeChanged, this,
        [this] { fireModeOfPlainView(LuDataCollection::SOURCE_USER); }, Qt::DirectConnection);
}

LuDualView::~LuDualView() = default;

void LuDualView::readSchema(const QByteArray& schema)
{
    m_dualModeEnable = loadVCPFunctionOnOffByCategory(schema, QStringLiteral("Dualview"));
    m_dualModePlusEnable = loadVCPFunctionOnOffByCategory(schema, QStringLiteral("DualviewPlus"));
}

void LuDualView::loadSettings()
{
    if (isInert())
        return;
    m_state = moduleSetting(StateKey, m_state.get()).toBool();
    LuVCPNode* node = model()->getColorModeByName(moduleSetting(ModeKey, QString()).toString());
    const QList<LuVCPNode*> nodes = model()->colorModeList();
    if (!node && !nodes.isEmpty())
        node = nodes.first();
    m_currentDualMode = node;
}

void LuDualView::applyValues()
{
    if (isInert())
        return;
    qInfo() << "[LuDualView] apply state:" << m_state << "mode:" << dualModeName();
    setVCP(DualViewCode, dualViewValue(m_state, m_currentDualMode));
    Q_EMIT currentDualModeChanged();
    Q_EMIT stateChanged();
    fireState(m_state, LuDataCollection::SOURCE_LAUNCH);
}

void LuDualView::setState(bool state)
{
    const QString key = QStringLiteral("setState");
    if (isInert() || isSettled(key, m_state, state))
        return;
    postUniqueAtFront(this, key, [this, state] {
        if (state && !m_currentDualMode.get()) {
            qWarning() << "[LuDualView] m_currentDualMode is null in setState";
            return;
        }
        takeAsked(m_state, state, StateKey, "[LuDualView] setState:", &LuDualView::stateChanged,
                  [this, state] { setVCP(DualViewCode, dualViewValue(state, m_currentDualMode)); });
        fireState(state, LuDataCollection::SOURCE_USER);
    });
}

void LuDualView::setCurrentDualMode(LuVCPNode* node)
{
    const QString key = QStringLiteral("setCurrentDualMode");
    if (isInert() || isSettled(key, m_currentDualMode, node))
        return;
    postUniqueAtFront(this, key, [this, node] {
        const bool differs = m_currentDualMode.set(node);
        if (node) {
            qInfo() << "[LuDualView] setCurrentDualMode:" << node->displayName();
            setVCP(DualViewCode, dualViewValue(true, node));
            setModuleSetting(ModeKey, node->displayName());
            fireModeOfPlainView(LuDataCollection::SOURCE_USER);
        }
        if (differs)
            Q_EMIT currentDualModeChanged();
    });
}

LuSyncTasks* LuDualView::syncPeriodically()
{
    if (isInert())
        return nullptr;
    auto* tasks = new LuSyncTasks(QStringLiteral("LuDualView"));
    tasks->addTask([this, first = model()->isFirstTimeConnected()] { syncReading(first); });
    return tasks;
}

LuVCPNode* LuDualView::nodeOf(int reading) const
{
    const QList<LuVCPNode*> nodes = model()->colorModeList();
    const auto found = std::find_if(nodes.begin(), nodes.end(), [reading](const LuVCPNode* node) {
        return dualViewValue(true, node) == reading;
    });
    return found == nodes.end() ? nullptr : *found;
}

void LuDualView::syncReading(bool firstConnection)
{
    qInfo() << "[LuDualView] sync:" << model()->modelName();
    int reading = 0;
    if (!getVCP(DualViewCode, reading))
        return;
    const bool hardwareOn = (reading & ByteMask) != 0;
    bool modeDiffers = false;
    if (LuVCPNode* node = hardwareOn ? nodeOf(reading) : nullptr; node && m_currentDualMode.set(node)) {
        modeDiffers = true;
        qInfo() << "[LuDualView] sync dualMode changed:" << node->displayName();
        setModuleSetting(ModeKey, node->displayName());
        Q_EMIT currentDualModeChanged();
    }
    const bool stateDiffers = takeReported(m_state, hardwareOn, StateKey,
                                           "[LuDualView] sync state changed:", &LuDualView::stateChanged);
    if (firstConnection && hardwareOn)
        fireState(true, LuDataCollection::SOURCE_FIRST_CONNECT);
    else if (stateDiffers)
        fireState(hardwareOn, LuDataCollection::SOURCE_SYNC);
    else if (modeDiffers)
        fireModeOfPlainView(LuDataCollection::SOURCE_SYNC);
}

void LuDualView::fireExitEvent()
{
    if (m_dualModeEnable && m_state)
        fireState(false, LuDataCollection::SOURCE_EXIT);
}

// The plus variant tells whether it is on and nothing else.
void LuDualView::fireState(bool on, LuDataCollection::TriggerSource source)
{
    if (m_dualModeEnable)
        fireOnOffEvent(LuDataCollection::ACT_DUAL_VIEW, on, source,
                       on ? parametersStrings() : QList<QString>());
    else
        fireOnOffEvent(LuDataCollection::ACT_DUAL_VIEW_PLUS, on, source, {});
}

void LuDualView::fireModeOfPlainView(LuDataCollection::TriggerSource source)
{
    if (m_dualModeEnable && m_state)
        fireCustomEvent(LuDataCollection::ACT_DUAL_VIEW, QStringLiteral("on_update_setting"), source,
                        parametersStrings());
}

QString LuDualView::dualModeName() const
{
    const LuVCPNode* node = m_currentDualMode;
    return node ? node->displayName() : QString();
}

QList<QString> LuDualView::parametersStrings() const
{
    const LuVCPNode* current = model()->colorMode();
    return {current ? current->displayName() : QString(), dualModeName()};
}
