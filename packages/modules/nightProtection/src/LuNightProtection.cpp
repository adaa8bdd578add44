// SPDX-License-Identifier: Apache-2.0
#include "LuNightProtection.h"

#include <LuShared/LuColorModeKey.h>
#include <LuShared/LuMonitorModel.h>
#include <ZrCore/ZrClock.h>

#include <QDebug>
#include <QKeyEvent>

namespace {

constexpr int LevelCode = 0xD0;
constexpr int StateCode = 0xD1;
constexpr int MinimumLevel = 1;
constexpr int MaximumLevel = 10;

const QString LevelProperty = QStringLiteral("level");
const QString StartTimeKey = QStringLiteral("dataCollection/startTime");

struct StateRow
{
    LuNightProtection::NightHourState state;
    int value; ///< of VCP 0xD1
};

constexpr StateRow States[] = {
    {LuNightProtection::Auto, 2},
    {LuNightProtection::On, 1},
    {LuNightProtection::Off, 0},
};

constexpr int valueOf(LuNightProtection::NightHourState state)
{
    for (const StateRow& row : States) {
        if (row.state == state)
            return row.value;
    }
    return 0;
}

/// A value that no row has counts as the sensor's.
constexpr LuNightProtection::NightHourState stateOf(int value)
{
    for (const StateRow& row : States) {
        if (row.value == value)
            return row.state;
    }
    return LuNightProtection::Auto;
}

constexpr bool isLevel(int level)
{
    return level >= MinimumLevel && level <= MaximumLevel;
}

} // namespace

LuNightProtection::LuNightProtection(LuMonitorModel* model) : LuModelModuleInterface(model)
{
    model->registerForceSyncPairs(model, QMetaMethod::fromSignal(&LuMonitorModel::colorModeChanged),
                                  QStringLiteral("LuNightProtection"));
}

LuNightProtection::~LuNightProtection() = default;

void LuNightProtection::readSchema(const QByteArray& schema)
{
    m_nightProtectionEnable = loadVCPFunctionOnOffByCategory(schema, QStringLiteral("NightProtection"));
}

QString LuNightProtection::stateKey() const
{
    return colorModeSettingKey(model(), QStringLiteral("state"));
}

QString LuNightProtection::levelKey() const
{
    return colorModeSettingKey(model(), LevelProperty);
}

void LuNightProtection::loadSettings()
{
    if (!m_nightProtectionEnable)
        return;
    m_previousState = m_state;
    m_state = NightHourState(moduleSetting(stateKey(), int(m_state.get())).toInt());
    m_level = moduleSetting(levelKey(), m_level.get()).toInt();
}

void LuNightProtection::applyValues()
{
    // In a colour mode that nobody has used yet there is nothing to restore.
    if (!m_nightProtectionEnable || !hasModuleSetting(stateKey()))
        return;
    qInfo() << "[LuNightProtection] apply Night Hours Protection state:" << m_state;
    setVCP(StateCode, valueOf(m_state));
    Q_EMIT stateChanged();
    qInfo() << "[LuLowBlueLight] apply Night Hours Protection level:" << m_level;
    // A level that was never read or set is the monitor's own.
    if (isLevel(m_level))
        setVCP(LevelCode, m_level);
    Q_EMIT levelChanged();
    if (m_state == Off && m_previousState == Off)
        model()->setSkipApplyValuesWithLaunchTime(this, true);
    fireState(LuDataCollection::SOURCE_LAUNCH);
}

void LuNightProtection::registerShortcutActions()
{
    if (!m_nightProtectionEnable)
        return;
    registerShortcutAction(LuShortcutAction::NightProtection_Decrease,
                           [this](const QKeyEvent& event) { return stepLevel(event, -1); });
    registerShortcutAction(LuShortcutAction::NightProtection_Increase,
                           [this](const QKeyEvent& event) { return stepLevel(event, +1); });
}

bool LuNightProtection::stepLevel(const QKeyEvent& event, int step)
{
    // A held key shall not run the level through its range.
    if (m_state == Off || event.isAutoRepeat())
        return false;
    m_shortcutInProgress = true;
    setLevel(m_level + step);
    m_shortcutInProgress = false;
    return true;
}

void LuNightProtection::setState(NightHourState state)
{
    const QString key = QStringLiteral("setState");
    if (!m_nightProtectionEnable || isSettled(key, m_state, state))
        return;
    const bool triggered = model()->isOtherFunctionTrigger(this);
    postUniqueAtFront(this, key, [this, state, triggered] {
        takeAsked(m_state, state, stateKey(),
                  "[LuNightProtection] set Night Hours Protection state:", &LuNightProtection::stateChanged,
                  [this, state] { setVCP(StateCode, valueOf(state)); });
        fireState(LuDataCollection::setterSource(triggered));
    });
}

void LuNightProtection::setLevel(int level)
{
    const QString key = QStringLiteral("setLevel");
    if (!m_nightProtectionEnable || !isLevel(level) || isSettled(key, m_level, level))
        return;
    postUniqueAtFront(this, key, [this, level, byShortcut = m_shortcutInProgress] {
        qInfo() << "[LuNightProtection] set Night Hours Protection Level:" << level;
        setVCP(LevelCode, level);
        const bool differs = m_level.set(level);
        setModuleSetting(levelKey(), level);
        // A slider's steps are told when its page closes.
        if (byShortcut)
            fireUpdate(LuDataCollection::SOURCE_USER);
        if (differs)
            Q_EMIT levelChanged();
    });
}

LuSyncTasks* LuNightProtection::syncPeriodically()
{
    if (!m_nightProtectionEnable)
        return nullptr;
    auto* tasks = new LuSyncTasks(QStringLiteral("LuNightProtection"));
    tasks->addTask([this, tasks, first = model()->isFirstTimeConnected()] { syncState(tasks, first); });
    return tasks;
}

void LuNightProtection::syncState(LuSyncTasks* tasks, bool firstConnection)
{
    qInfo() << "[LuNightProtection] sync:" << model()->modelName();
    int value = 0;
    const bool read = getVCP(StateCode, value);
    qInfo() << "[LuNightProtection] get LuNightProtection state";
    if (!read)
        return;
    const bool differs = takeReportedOfMode(
        m_state, stateOf(value), stateKey(),
        "[LuNightProtection] sync NightProtection state changed:", &LuNightProtection::stateChanged);
    if (firstConnection ? m_state != Off : differs)
        fireState(LuDataCollection::syncSource(firstConnection));
    if (m_state != Off)
        tasks->addSubTask([this] { syncLevel(); });
}

void LuNightProtection::syncLevel()
{
    int level = 0;
    const bool read = getVCP(LevelCode, level);
    qInfo() << "[LuNightProtection] get LuNightProtection level";
    if (!read)
        return;
    const bool differs = takeReportedOfMode(
        m_level, level, levelKey(),
        "[LuNightProtection] sync NightProtection level changed:", &LuNightProtection::levelChanged);
    if (differs && m_state != Auto)
        fireUpdate(LuDataCollection::SOURCE_SYNC);
}

void LuNightProtection::onFireUpdateSettingEventRequested(const QHash<QString, QVariant>& parameters,
                                                          LuDataCollection::TriggerSource)
{
    if (m_state != Off && parameters.value(LevelProperty).toInt() != m_level)
        fireUpdate(LuDataCollection::SOURCE_USER);
}

void LuNightProtection::fireExitEvent()
{
    if (m_state != Off)
        fireOnOffEvent(LuDataCollection::ACT_NIGHT_PROTECTION, false, LuDataCollection::SOURCE_EXIT, {});
}

QList<QString> LuNightProtection::parametersStrings() const
{
    return {QString::number(m_level)};
}

void LuNightProtection::fireState(LuDataCollection::TriggerSource source)
{
    switch (m_state) {
    case Auto:
        keepStartTime();
        fireCustomEvent(LuDataCollection::ACT_NIGHT_PROTECTION, QStringLiteral("auto_switch"), source);
        break;
    case On:
        fireOnOffEvent(LuDataCollection::ACT_NIGHT_PROTECTION, true, source, parametersStrings());
        break;
    default:
        fireOnOffEvent(LuDataCollection::ACT_NIGHT_PROTECTION, false, source, {});
        break;
    }
}

void LuNightProtection::fireUpdate(LuDataCollection::TriggerSource source)
{
    fireCustomEvent(LuDataCollection::ACT_NIGHT_PROTECTION, QStringLiteral("on_update_setting"), source,
                    parametersStrings());
}

void LuNightProtection::keepStartTime()
{
    if (!hasModuleSetting(StartTimeKey))
        setModuleSetting(StartTimeKey, ZrClock::instance().now());
}
