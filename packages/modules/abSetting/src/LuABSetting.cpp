// SPDX-License-Identifier: Apache-2.0
#include "LuABSetting.h"

#include <LuShared/LuColorModeKey.h>
#include <LuShared/LuMonitorModel.h>

#include <QDebug>

namespace {

constexpr int StateCode = 0xE2;
constexpr int LightMeterCode = 0xE3;
constexpr int SensitivityCode = 0xE5;
constexpr int OnValue = 255;

const QString StateName = QStringLiteral("currentAB");
const QString LightMeterName = QStringLiteral("LightMeter");
const QString SensitivityName = QStringLiteral("Sensitivity");

} // namespace

LuABSetting::LuABSetting(LuMonitorModel* model) : LuModelModuleInterface(model)
{
    model->registerForceSyncPairs(model, QMetaMethod::fromSignal(&LuMonitorModel::colorModeChanged),
                                  QStringLiteral("LuABSetting"));
    // The monitor's brightness moves when the sensor takes over or lets go.
    model->registerForceSyncPairs(this, QMetaMethod::fromSignal(&LuABSetting::currentABChanged),
                                  QStringLiteral("LuBrightness"));
}

LuABSetting::~LuABSetting() = default;

void LuABSetting::readSchema(const QByteArray& schema)
{
    QString type;
    loadVCPFunctionStringByCategory(schema, QStringLiteral("AB Type"), type);
    m_abSensorEnable =
        loadVCPFunctionOnOffByCategory(schema, QStringLiteral("AB Sensor")) && type == QLatin1String("AB");
    loadVCPFunctionValueByCategory(schema, QStringLiteral("Max AB Sensitivity"), m_maxSensitivity);
    loadVCPFunctionValueByCategory(schema, QStringLiteral("TransitionStepInterval"),
                                   m_transitionStepInterval);
}

QString LuABSetting::key(const QString& name) const
{
    return colorModeSettingKey(model(), name);
}

void LuABSetting::loadSettings()
{
    if (!m_abSensorEnable)
        return;
    m_previousAB = m_currentAB;
    m_currentAB = moduleSetting(key(StateName), m_currentAB.get()).toBool();
    m_lightMeterState = moduleSetting(key(LightMeterName), m_lightMeterState.get()).toBool();
    m_sensitivity = moduleSetting(key(SensitivityName), m_sensitivity.get()).toInt();
}

void LuABSetting::applyValues()
{
    // In a colour mode that nobody has used yet there is nothing to restore.
    if (!m_abSensorEnable || !hasModuleSetting(key(StateName)))
        return;
    qInfo() << "[LuABSetting] apply AB state:" << m_currentAB;
    writeState();
    Q_EMIT currentABChanged();
    qInfo() << "[LuABSetting] apply Light Meter state:" << m_lightMeterState;
    // What was never read or set is the monitor's own.
    if (hasModuleSetting(key(LightMeterName)))
        setVCP(LightMeterCode, m_lightMeterState ? 1 : 0);
    Q_EMIT lightMeterStateChanged();
    qInfo() << "[LuABSetting] apply AB Sensitivity: " << m_sensitivity;
    if (hasModuleSetting(key(SensitivityName)))
        setVCP(SensitivityCode, m_sensitivity);
    Q_EMIT sensitivityChanged();
    if (!m_previousAB && !m_currentAB)
        model()->setSkipApplyValuesWithLaunchTime(this, true);
    fireOnOff(LuDataCollection::SOURCE_LAUNCH);
}

void LuABSetting::writeState()
{
    setVCP(StateCode, m_currentAB ? OnValue : 0);
}

void LuABSetting::setCurrentAB(bool on)
{
    const QString job = QStringLiteral("setCurrentAB");
    if (!m_abSensorEnable || isSettled(job, m_currentAB, on))
        return;
    const bool triggered = model()->isOtherFunctionTrigger(this);
    postUniqueAtFront(this, job, [this, on, triggered] {
        takeAsked(m_currentAB, on, key(StateName),
                  "[LuABSetting] set AB state: ", &LuABSetting::currentABChanged, [this] { writeState(); });
        fireOnOff(LuDataCollection::setterSource(triggered));
    });
}

void LuABSetting::setLightMeterState(bool state)
{
    const QString job = QStringLiteral("setLightMeterState");
    if (!m_abSensorEnable || !m_currentAB || isSettled(job, m_lightMeterState, state))
        return;
    postUniqueAtFront(this, job, [this, state] {
        takeAsked(m_lightMeterState, state, key(LightMeterName),
                  "[LuABSetting] set AB Light Meter: ", &LuABSetting::lightMeterStateChanged,
                  [this, state] { setVCP(LightMeterCode, state ? 1 : 0); });
    });
}

void LuABSetting::setSensitivity(int sensitivity)
{
    const QString job = QStringLiteral("setSensitivity");
    if (!m_abSensorEnable || isSettled(job, m_sensitivity, sensitivity))
        return;
    postUniqueAtFront(this, job, [this, sensitivity] {
        takeAsked(m_sensitivity, sensitivity, key(SensitivityName),
                  "[LuABSetting] set AB Sensitivity: ", &LuABSetting::sensitivityChanged,
                  [this, sensitivity] { setVCP(SensitivityCode, sensitivity); });
    });
}

LuSyncTasks* LuABSetting::syncPeriodically()
{
    if (!m_abSensorEnable)
        return nullptr;
    auto* tasks = new LuSyncTasks(QStringLiteral("LuABSetting"));
    tasks->addTask([this, tasks, first = model()->isFirstTimeConnected()] { syncState(tasks, first); });
    return tasks;
}

void LuABSetting::syncState(LuSyncTasks* tasks, bool firstConnection)
{
    qInfo() << "[LuABSetting] sync:" << model()->modelName();
    int value = 0;
    const bool read = getVCP(StateCode, value);
    qInfo() << "[LuABSetting] get AB state";
    if (!read)
        return;
    const bool differs = takeReportedOfMode(m_currentAB, value != 0, key(StateName),
                                            "[LuABSetting] sync AB changed:", &LuABSetting::currentABChanged);
    if (firstConnection && m_currentAB)
        fireOnOff(LuDataCollection::SOURCE_FIRST_CONNECT);
    else if (differs)
        fireOnOff(LuDataCollection::SOURCE_SYNC);
    if (!m_currentAB)
        return;
    tasks->addSubTask([this] { syncLightMeter(); });
    tasks->addSubTask([this] { syncSensitivity(); });
}

void LuABSetting::syncLightMeter()
{
    int value = 0;
    const bool read = getVCP(LightMeterCode, value);
    qInfo() << "[LuABSetting] get AB Light Meter";
    if (read)
        takeReportedOfMode(
            m_lightMeterState, value != 0, key(LightMeterName),
            "[LuABSetting] sync AB Light Meter changed:", &LuABSetting::lightMeterStateChanged);
}

void LuABSetting::syncSensitivity()
{
    int value = 0;
    const bool read = getVCP(SensitivityCode, value);
    qInfo() << "[LuABSetting] get AB Sensitivity";
    if (read)
        takeReportedOfMode(m_sensitivity, value, key(SensitivityName),
                           "[LuABSetting] sync AB Sensitivity changed:", &LuABSetting::sensitivityChanged);
}

void LuABSetting::fireExitEvent()
{
    if (m_currentAB)
        fireOnOffEvent(LuDataCollection::ACT_AB_SETTING, false, LuDataCollection::SOURCE_EXIT, {});
}

void LuABSetting::fireOnOff(LuDataCollection::TriggerSource source)
{
    fireOnOffEvent(LuDataCollection::ACT_AB_SETTING, m_currentAB, source, {});
}
