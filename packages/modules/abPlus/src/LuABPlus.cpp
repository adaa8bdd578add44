// SPDX-License-Identifier: Apache-2.0
#include "LuABPlus.h"

#include <LuShared/LuColorModeKey.h>
#include <LuShared/LuMonitorModel.h>

#include <QDebug>

namespace {

constexpr int StateCode = 0x81;
constexpr int LightMeterCode = 0xE3;
constexpr int SensitivityCode = 0xE5;

const QString StateName = QStringLiteral("state");
const QString ModeName = QStringLiteral("mode");
const QString SensitivityName = QStringLiteral("sensitivity");
const QString LightMeterName = QStringLiteral("LightMeter");

} // namespace

LuABPlus::LuABPlus(LuMonitorModel* model) : LuModelModuleInterface(model)
{
    model->registerForceSyncPairs(model, QMetaMethod::fromSignal(&LuMonitorModel::colorModeChanged),
                                  QStringLiteral("LuABPlus"));
    // The monitor's brightness moves when the sensor takes over or lets go.
    model->registerForceSyncPairs(this, QMetaMethod::fromSignal(&LuABPlus::stateChanged),
                                  QStringLiteral("LuBrightness"));
}

LuABPlus::~LuABPlus() = default;

void LuABPlus::readSchema(const QByteArray& schema)
{
    const bool sensor = loadVCPFunctionOnOffByCategory(schema, QStringLiteral("AB Sensor"));
    QString type;
    loadVCPFunctionStringByCategory(schema, QStringLiteral("AB Type"), type);
    if (type == QLatin1String("AB Plus")) {
        m_sensorEnable = sensor;
    } else if (type == QLatin1String("VO")) {
        m_sensorEnable = sensor;
        m_displayNameType = NameVisualOptimizer;
    }
    loadVCPFunctionValueByCategory(schema, QStringLiteral("MinABSensitivity"), m_minSensitivity);
    loadVCPFunctionValueByCategory(schema, QStringLiteral("MaxABSensitivity"), m_maxSensitivity);
    loadVCPFunctionValueByCategory(schema, QStringLiteral("TransitionStepInterval"),
                                   m_transitionStepInterval);
    m_lightMeterEnable = loadVCPFunctionOnOffByCategory(schema, QStringLiteral("VOLightMeter"));
}

QString LuABPlus::key(const QString& name) const
{
    return colorModeSettingKey(model(), name);
}

void LuABPlus::loadSettings()
{
    if (!m_sensorEnable)
        return;
    m_previousState = m_state;
    m_state = moduleSetting(key(StateName), m_state.get()).toBool();
    m_mode = ABPlusMode(moduleSetting(key(ModeName), int(m_mode.get())).toInt());
    m_sensitivity = moduleSetting(key(SensitivityName), m_sensitivity.get()).toInt();
    m_lightMeterState = moduleSetting(key(LightMeterName), m_lightMeterState.get()).toBool();
}

void LuABPlus::applyValues()
{
    // In a colour mode that nobody has used yet there is nothing to restore.
    if (!m_sensorEnable || !hasModuleSetting(key(StateName)))
        return;
    if (m_state)
        qInfo() << "[LuABPlus] apply AB Plus mode:" << m_mode;
    else
        qInfo() << "[LuABPlus] apply AB Plus state:" << m_state;
    setVCP(StateCode, stateValue());
    Q_EMIT stateChanged();
    Q_EMIT modeChanged();
    qInfo() << "[LuABPlus] apply AB Plus sensitivity: " << m_sensitivity;
    // What was never read or set is the monitor's own.
    if (hasModuleSetting(key(SensitivityName)))
        setVCP(SensitivityCode, m_sensitivity);
    Q_EMIT sensitivityChanged();
    if (m_lightMeterEnable) {
        qInfo() << "[LuABPlus] apply AB Plus Light Meter: " << m_lightMeterState;
        if (hasModuleSetting(key(LightMeterName)))
            setVCP(LightMeterCode, m_lightMeterState ? 1 : 0);
        Q_EMIT lightMeterStateChanged();
    }
    if (!m_previousState && !m_state)
        model()->setSkipApplyValuesWithLaunchTime(this, true);
    fireOnOff(LuDataCollection::SOURCE_LAUNCH);
}

void LuABPlus::setState(bool state)
{
    const QString job = QStringLiteral("setState");
    if (!m_sensorEnable || isSettled(job, m_state, state))
        return;
    const bool triggered = model()->isOtherFunctionTrigger(this);
    postUniqueAtFront(this, job, [this, state, triggered] {
        takeAsked(m_state, state, key(StateName), "[LuABPlus] setState:", &LuABPlus::stateChanged,
                  [this] { setVCP(StateCode, stateValue()); });
        fireOnOff(LuDataCollection::setterSource(triggered));
    });
}

void LuABPlus::setMode(ABPlusMode mode)
{
    const QString job = QStringLiteral("setMode");
    if (!m_sensorEnable || isSettled(job, m_mode, mode))
        return;
    if (int(mode) == 0) {
        setState(false);
        return;
    }
    postUniqueAtFront(this, job, [this, mode] {
        takeAsked(m_mode, mode, key(ModeName), "[LuABPlus] set AB Plus mode: ", &LuABPlus::modeChanged,
                  [this, mode] { setVCP(StateCode, mode); });
    });
}

void LuABPlus::setSensitivity(int sensitivity)
{
    const QString job = QStringLiteral("setSensitivity");
    if (!m_sensorEnable || isSettled(job, m_sensitivity, sensitivity))
        return;
    postUniqueAtFront(this, job, [this, sensitivity] {
        takeAsked(m_sensitivity, sensitivity, key(SensitivityName),
                  "[LuABPlus] set AB Plus sensitivity: ", &LuABPlus::sensitivityChanged,
                  [this, sensitivity] { setVCP(SensitivityCode, sensitivity); });
    });
}

void LuABPlus::setLightMeterState(bool state)
{
    const QString job = QStringLiteral("setLightMeterState");
    if (!m_sensorEnable || !m_lightMeterEnable || isSettled(job, m_lightMeterState, state))
        return;
    postUniqueAtFront(this, job, [this, state] {
        takeAsked(m_lightMeterState, state, key(LightMeterName),
                  "[LuABPlus] set AB Light Meter: ", &LuABPlus::lightMeterStateChanged,
                  [this, state] { setVCP(LightMeterCode, state ? 1 : 0); });
    });
}

LuSyncTasks* LuABPlus::syncPeriodically()
{
    if (!m_sensorEnable)
        return nullptr;
    auto* tasks = new LuSyncTasks(QStringLiteral("LuABPlus"));
    tasks->addTask([this, tasks, first = model()->isFirstTimeConnected()] { syncState(tasks, first); });
    return tasks;
}

void LuABPlus::syncState(LuSyncTasks* tasks, bool firstConnection)
{
    qInfo() << "[LuABPlus] sync:" << model()->modelName();
    int value = 0;
    if (!getVCP(StateCode, value))
        return;
    const bool on = value != 0;
    bool modeDiffers = false;
    if (on) {
        modeDiffers = takeReportedOfMode(m_mode, ABPlusMode(value), key(ModeName),
                                         "[LuABPlus] sync AB Plus mode changed:", &LuABPlus::modeChanged);
        tasks->addSubTask([this] { syncSensitivity(); });
        if (m_lightMeterEnable)
            tasks->addSubTask([this] { syncLightMeter(); });
    }
    const bool stateDiffers = takeReportedOfMode(
        m_state, on, key(StateName), "[LuABPlus] sync AB Plus state changed:", &LuABPlus::stateChanged);
    if (firstConnection && on)
        fireOnOff(LuDataCollection::SOURCE_FIRST_CONNECT);
    else if (stateDiffers)
        fireOnOff(LuDataCollection::SOURCE_SYNC);
    else if (modeDiffers)
        fireUpdate(LuDataCollection::SOURCE_SYNC);
}

void LuABPlus::syncSensitivity()
{
    int value = 0;
    if (getVCP(SensitivityCode, value))
        takeReportedOfMode(m_sensitivity, value, key(SensitivityName),
                           "[LuABPlus] sync AB Plus sensitivity changed:", &LuABPlus::sensitivityChanged);
}

void LuABPlus::syncLightMeter()
{
    int value = 0;
    const bool read = getVCP(LightMeterCode, value);
    qInfo() << "[LuABPlus] get AB Light Meter: " << (value != 0);
    if (read)
        takeReportedOfMode(m_lightMeterState, value != 0, key(LightMeterName),
                           "[LuABPlus] sync AB Plus Light Meter changed:", &LuABPlus::lightMeterStateChanged);
}

void LuABPlus::onFireUpdateSettingEventRequested(const QHash<QString, QVariant>& parameters,
                                                 LuDataCollection::TriggerSource source)
{
    const bool differs = parameters.value(ModeName).toInt() != m_mode ||
                         parameters.value(SensitivityName).toInt() != m_sensitivity;
    if (differs && m_state)
        fireUpdate(source);
}

void LuABPlus::fireExitEvent()
{
    if (m_state)
        fireOnOffEvent(LuDataCollection::ACT_AB_PLUS, false, LuDataCollection::SOURCE_EXIT, {});
}

QList<QString> LuABPlus::parametersStrings() const
{
    return {m_mode == ModeABPlus ? QStringLiteral("brightness_colorTemp") : QStringLiteral("brightness_only"),
            QString::number(m_sensitivity)};
}

void LuABPlus::fireOnOff(LuDataCollection::TriggerSource source)
{
    const bool on = m_state;
    fireOnOffEvent(LuDataCollection::ACT_AB_PLUS, on, source, on ? parametersStrings() : QList<QString>());
}

void LuABPlus::fireUpdate(LuDataCollection::TriggerSource source)
{
    fireCustomEvent(LuDataCollection::ACT_AB_PLUS, QStringLiteral("on_update_setting"), source,
                    parametersStrings());
}
