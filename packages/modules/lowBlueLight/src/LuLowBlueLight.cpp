// SPDX-License-Identifier: Apache-2.0
#include "LuLowBlueLight.h"

#include <LuShared/LuColorModeKey.h>
#include <LuShared/LuMonitorModel.h>

#include <QDebug>

namespace {

constexpr int LevelCode = 0x19;

const QString LevelKey = QStringLiteral("level");

LuLowBlueLight::LowBlueLight typeOf(const QString& name)
{
    if (name == QLatin1String("normal"))
        return LuLowBlueLight::LowBlueLightNormal;
    if (name == QLatin1String("plus"))
        return LuLowBlueLight::LowBlueLightPlus;
    return LuLowBlueLight::LowBlueLightNotSupport;
}

} // namespace

LuLowBlueLight::LuLowBlueLight(LuMonitorModel* model)
    : LuModelModuleInterface(model), m_weather(new LuWeather(this, model->id()))
{
    model->registerForceSyncPairs(model, QMetaMethod::fromSignal(&LuMonitorModel::colorModeChanged),
                                  QStringLiteral("LuLowBlueLight"));
    connect(m_weather, &LuWeather::lowBlueLightLevelChanged, this, [this] {
        // The check runs on a queue: meanwhile the user may have ended the schedule and chosen a level.
        if (m_weather->circadianState())
            setLevel(m_weather->lowBlueLightLevel());
    });
    connect(m_weather, &LuWeather::circadianStateChanged, this, &LuLowBlueLight::circadianStateChanged);
}

LuLowBlueLight::~LuLowBlueLight() = default;

void LuLowBlueLight::readSchema(const QByteArray& schema)
{
    QString type;
    if (loadVCPFunctionStringByCategory(schema, QStringLiteral("LowBlueLight"), type))
        m_type = typeOf(type.toLower());
}

void LuLowBlueLight::onInitialSync()
{
    if (m_weather->circadianState() && m_weather->lowBlueLightLevel() != -1)
        setLevel(m_weather->lowBlueLightLevel());
}

void LuLowBlueLight::loadSettings()
{
    if (!lowBlueLightEnable())
        return;
    m_previousLevel = m_level;
    m_level = moduleSetting(colorModeSettingKey(model(), LevelKey), m_level.get()).toInt();
    updateState();
}

void LuLowBlueLight::applyValues()
{
    // In a colour mode that nobody has used yet there is nothing to restore.
    if (!lowBlueLightEnable() || !hasModuleSetting(colorModeSettingKey(model(), LevelKey)))
        return;
    qInfo() << "[LuLowBlueLight] apply low blue light level:" << m_level;
    setVCP(LevelCode, m_level);
    Q_EMIT levelChanged();
    // A filter that was off and stays off is not written again at later launches.
    if (m_previousLevel == 0 && m_level == 0)
        model()->setSkipApplyValuesWithLaunchTime(this, true);
    fireOnOff(LuDataCollection::SOURCE_LAUNCH);
}

void LuLowBlueLight::setLevel(int level)
{
    const QString key = QStringLiteral("setLevel");
    if (!lowBlueLightEnable() || isSettled(key, m_level, level))
        return;
    const bool triggered = model()->isOtherFunctionTrigger(this);
    postUniqueAtFront(this, key, [this, level, triggered] {
        takeAsked(m_level, level, colorModeSettingKey(model(), LevelKey),
                  "[LuLowBlueLight] setLevel:", &LuLowBlueLight::levelChanged,
                  [this, level] { setVCP(LevelCode, level); });
        if (updateState())
            fireOnOff(LuDataCollection::setterSource(triggered));
        else if (triggered)
            fireUpdate(LuDataCollection::SOURCE_OTHER_FUNCTION);
    });
}

void LuLowBlueLight::setCircadianState(bool state)
{
    if (!lowBlueLightEnable() || m_weather->circadianState() == state)
        return;
    m_weather->setCircadianState(state);
    if (updateState())
        fireOnOff(LuDataCollection::SOURCE_USER);
    fireCircadian(LuDataCollection::setterSource(model()->isOtherFunctionTrigger(this)));
}

bool LuLowBlueLight::updateState()
{
    // The level changes on the queue and the schedule on the GUI thread: the later of two that meet decides.
    const bool before = m_state;
    bool state = before;
    do {
        state = m_weather->circadianState() || m_level >= 1;
        if (m_state.set(state))
            Q_EMIT stateChanged();
    } while (state != (m_weather->circadianState() || m_level >= 1));
    return state != before;
}

LuSyncTasks* LuLowBlueLight::syncPeriodically()
{
    if (!lowBlueLightEnable())
        return nullptr;
    auto* tasks = new LuSyncTasks(QStringLiteral("LuLowBlueLight"));
    tasks->addTask([this, first = model()->isFirstTimeConnected()] { syncLevel(first); });
    return tasks;
}

void LuLowBlueLight::syncLevel(bool firstConnection)
{
    qInfo() << "[LuLowBlueLight] sync:" << model()->modelName();
    int value = 0;
    if (!getVCP(LevelCode, value))
        return;
    const bool differs =
        takeReportedOfMode(m_level, value, colorModeSettingKey(model(), LevelKey),
                           "[LuLowBlueLight] sync level changed:", &LuLowBlueLight::levelChanged);
    const bool stateDiffers = updateState();
    if (firstConnection && m_weather->circadianState())
        fireCircadian(LuDataCollection::SOURCE_FIRST_CONNECT);
    if (firstConnection && m_state) {
        fireOnOff(LuDataCollection::SOURCE_FIRST_CONNECT);
        return;
    }
    if (!differs)
        return;
    if (stateDiffers)
        fireOnOff(LuDataCollection::SOURCE_SYNC);
    else
        fireUpdate(LuDataCollection::SOURCE_SYNC);
}

void LuLowBlueLight::onFireUpdateSettingEventRequested(const QHash<QString, QVariant>& parameters,
                                                       LuDataCollection::TriggerSource source)
{
    if (m_state && parameters.value(LevelKey).toInt() != m_level)
        fireUpdate(source);
}

void LuLowBlueLight::fireExitEvent()
{
    if (m_state)
        fireOnOffEvent(action(), false, LuDataCollection::SOURCE_EXIT, {});
}

LuDataCollection::Action LuLowBlueLight::action() const
{
    return m_type == LowBlueLightPlus ? LuDataCollection::ACT_LOW_BLUE_LIGHT_PLUS
                                      : LuDataCollection::ACT_LOW_BLUE_LIGHT;
}

QList<QString> LuLowBlueLight::levelParameters() const
{
    return {QString::number(m_level)};
}

QList<QString> LuLowBlueLight::circadianParameters() const
{
    return {m_weather->circadianMode() == LuWeather::Manual ? QStringLiteral("manual")
                                                            : QStringLiteral("auto")};
}

void LuLowBlueLight::fireOnOff(LuDataCollection::TriggerSource source)
{
    const bool on = m_state;
    fireOnOffEvent(action(), on, source, on ? levelParameters() : QList<QString>());
}

void LuLowBlueLight::fireUpdate(LuDataCollection::TriggerSource source)
{
    fireCustomEvent(action(), QStringLiteral("on_update_setting"), source, levelParameters());
}

void LuLowBlueLight::fireCircadian(LuDataCollection::TriggerSource source)
{
    const bool on = m_weather->circadianState();
    fireCustomEvent(LuDataCollection::ACT_CIRCADIAN, on ? QStringLiteral("on") : QStringLiteral("off"),
                    source, on ? circadianParameters() : QList<QString>());
}
