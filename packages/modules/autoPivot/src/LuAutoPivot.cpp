// SPDX-License-Identifier: Apache-2.0
#include "LuAutoPivot.h"

#include <LuShared/LuMonitorModel.h>
#include <LuShared/LuPlatform.h>
#include <LuShared/LuPlatformNotifications.h>

#include <QDebug>

namespace {

constexpr int OrientationCode = 0xAA;

const QString StateKey = QStringLiteral("state");
const QString DegreeKey = QStringLiteral("degree");

constexpr bool isLandscapeAt(int degrees)
{
    return degrees % 180 == 0;
}

constexpr bool isRotation(int degrees)
{
    return degrees == 0 || degrees == 90 || degrees == 180 || degrees == 270;
}

constexpr int degreesOf(int sensorValue)
{
    switch (sensorValue) {
    case LuAutoPivot::PivotVertical:
        return 90;
    case LuAutoPivot::PivotReverseVertical:
        return 270;
    default:
        return 0;
    }
}

} // namespace

LuAutoPivot::LuAutoPivot(LuMonitorModel* model) : LuModelModuleInterface(model)
{
    connect(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged, this,
            &LuAutoPivot::syncOrientation);
}

LuAutoPivot::~LuAutoPivot() = default;

void LuAutoPivot::readSchema(const QByteArray& schema)
{
    m_autoPivotEnable = loadVCPFunctionOnOffByCategory(schema, QStringLiteral("Auto Pivot"));
}

void LuAutoPivot::loadSettings()
{
    if (m_autoPivotEnable)
        m_state = moduleSetting(StateKey, m_state.get()).toBool();
    if (const int degrees = moduleSetting(DegreeKey, m_currentPivot.get()).toInt(); isRotation(degrees))
        m_currentPivot = degrees;
    m_isLandscape = isLandscapeAt(m_currentPivot);
}

void LuAutoPivot::applyValues()
{
    if (!m_autoPivotEnable) {
        qInfo() << "[LuAutoPivot] apply pivot:" << m_currentPivot;
        restorePivot();
        return;
    }
    qInfo() << "[LuAutoPivot] apply state:" << m_state << "pivot:" << m_currentPivot;
    if (!m_state)
        restorePivot();
    Q_EMIT currentPivotChanged();
    Q_EMIT isLandscapeChanged();
    Q_EMIT stateChanged();
    fireOnOffEvent(LuDataCollection::ACT_AUTO_PIVOT, m_state, LuDataCollection::SOURCE_LAUNCH,
                   eventParameters());
}

void LuAutoPivot::restorePivot()
{
    // A rotation that was never chosen here is the desktop's own.
    if (hasModuleSetting(DegreeKey))
        LuPlatform::setMonitorPivot(handler(), m_currentPivot);
}

void LuAutoPivot::setState(bool state)
{
    if (!m_state.set(state))
        return;
    setModuleSetting(StateKey, state);
    Q_EMIT stateChanged();
    fireOnOffEvent(LuDataCollection::ACT_AUTO_PIVOT, state, LuDataCollection::SOURCE_USER, eventParameters());
}

void LuAutoPivot::setCurrentPivot(int degrees)
{
    if (m_currentPivot == degrees)
        return;
    if (!isRotation(degrees)) {
        qWarning() << "[LuAutoPivot] no screen can be rotated by" << degrees << "degrees";
        return;
    }
    qInfo() << "[LuAutoPivot] set current pivot:" << degrees;
    storePivot(degrees);
    LuPlatform::setMonitorPivot(handler(), degrees);
    setModuleSetting(DegreeKey, degrees);
    Q_EMIT currentPivotChanged();
}

void LuAutoPivot::storePivot(int degrees)
{
    m_currentPivot = degrees;
    if (m_isLandscape.set(isLandscapeAt(degrees)))
        Q_EMIT isLandscapeChanged();
}

void LuAutoPivot::onInitialSync()
{
    syncOrientation();
}

void LuAutoPivot::syncOrientation()
{
    qInfo() << "[LuAutoPivot] sync orientation:" << model()->modelName();
    const int degrees = LuPlatform::getMonitorPivot(handler());
    if (m_currentPivot == degrees)
        return;
    qInfo() << "[LuAutoPivot] sync orientation changed:" << degrees;
    storePivot(degrees);
    Q_EMIT currentPivotChanged();
}

LuSyncTasks* LuAutoPivot::syncPeriodically()
{
    if (model()->isFirstTimeConnected() && m_autoPivotEnable && !m_state)
        fireOnOffEvent(LuDataCollection::ACT_AUTO_PIVOT, false, LuDataCollection::SOURCE_FIRST_CONNECT,
                       parametersStrings());
    if (!m_autoPivotEnable || !m_state)
        return nullptr;
    auto* tasks = new LuSyncTasks(QStringLiteral("LuAutoPivot"));
    tasks->addTask([this] { syncSensor(); });
    return tasks;
}

void LuAutoPivot::syncSensor()
{
    qInfo() << "[LuAutoPivot] sync:" << model()->modelName();
    int value = 0;
    // Switched off since the round began, the rotation is the user's.
    if (getVCP(OrientationCode, value) && m_state)
        setCurrentPivot(degreesOf(value));
}

void LuAutoPivot::onFireUpdateSettingEventRequested(const QHash<QString, QVariant>& parameters,
                                                    LuDataCollection::TriggerSource source)
{
    if (m_state || parameters.value(QStringLiteral("currentPivot")).toInt() == m_currentPivot)
        return;
    fireCustomEvent(LuDataCollection::ACT_AUTO_PIVOT, QStringLiteral("off_update_setting"), source,
                    parametersStrings());
}

QList<QString> LuAutoPivot::parametersStrings() const
{
    return {QString::number(m_currentPivot)};
}

QList<QString> LuAutoPivot::eventParameters() const
{
    return m_state ? QList<QString>() : parametersStrings();
}
