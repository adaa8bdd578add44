// SPDX-License-Identifier: Apache-2.0
#include "LuEcoPrivacy.h"

#include <LuShared/LuMonitorModel.h>

#include <QDebug>
#include <QKeyEvent>

#include <optional>

namespace {

constexpr int TimeCode = 0xE7;
constexpr int ModeCode = 0xE8;
constexpr int SensitivityCode = 0xE9;

const QString StateKey = QStringLiteral("state");
const QString TimeKey = QStringLiteral("activeTime");
const QString SensitivityKey = QStringLiteral("sensorSensitivity");
const QString ModeKey = QStringLiteral("mode");

struct TimeRow
{
    int seconds; ///< as the schema names it
    LuEcoPrivacy::ActiveTime time;
};

constexpr TimeRow Times[] = {
    {5, LuEcoPrivacy::FiveSecs},    {10, LuEcoPrivacy::TenSecs},   {20, LuEcoPrivacy::TwentySecs},
    {30, LuEcoPrivacy::ThirtySecs}, {60, LuEcoPrivacy::SixtySecs}, {300, LuEcoPrivacy::FiveMins},
    {600, LuEcoPrivacy::TenMins},
};

std::optional<LuEcoPrivacy::ActiveTime> timeOf(const QString& seconds)
{
    bool isNumber = false;
    const int wanted = seconds.toInt(&isNumber);
    for (const TimeRow& row : Times) {
        if (isNumber && row.seconds == wanted)
            return row.time;
    }
    return std::nullopt;
}

} // namespace

LuEcoPrivacy::LuEcoPrivacy(LuMonitorModel* model) : LuModelModuleInterface(model) {}

LuEcoPrivacy::~LuEcoPrivacy() = default;

void LuEcoPrivacy::readSchema(const QByteArray& schema)
{
    m_ecoPrivacyEnable = loadVCPFunctionOnOffByCategory(schema, QStringLiteral("EcoPrivacy"));
    QString type;
    loadVCPFunctionStringByCategory(schema, QStringLiteral("EcoPrivacy Type"), type);
    if (type == QLatin1String("BackGlow"))
        m_type = BackGlow;
    QString options;
    loadVCPFunctionStringByCategory(schema, QStringLiteral("EcoPrivacy Options"), options);
    const QStringList seconds = options.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& part : seconds) {
        if (const auto time = timeOf(part))
            m_activeTimeList.append(*time);
    }
}

void LuEcoPrivacy::loadSettings()
{
    if (!m_ecoPrivacyEnable)
        return;
    m_previousState = m_state;
    m_state = moduleSetting(StateKey, m_state.get()).toBool();
    m_activeTime = ActiveTime(moduleSetting(TimeKey, int(m_activeTime.get())).toInt());
    m_sensorSensitivity =
        SensorSensitivity(moduleSetting(SensitivityKey, int(m_sensorSensitivity.get())).toInt());
}

void LuEcoPrivacy::applyValues()
{
    if (!m_ecoPrivacyEnable)
        return;
    if (m_state)
        qInfo() << "[LuEcoPrivacy] apply activeTime:" << m_activeTime;
    else
        qInfo() << "[LuEcoPrivacy] apply state:" << m_state;
    setVCP(TimeCode, m_state ? int(m_activeTime.get()) : int(Off));
    Q_EMIT stateChanged();
    Q_EMIT activeTimeChanged();
    qInfo() << "[LuEcoPrivacy] apply sensorSensitivity:" << m_sensorSensitivity;
    setVCP(SensitivityCode, m_sensorSensitivity);
    Q_EMIT sensorSensitivityChanged();
    if (!m_previousState && !m_state)
        model()->setSkipApplyValuesWithLaunchTime(this, true);
    fireOnOff(LuDataCollection::SOURCE_LAUNCH);
}

void LuEcoPrivacy::registerShortcutActions()
{
    if (!m_ecoPrivacyEnable)
        return;
    registerShortcutAction(LuShortcutAction::EcoPrivacy_TurnOnOff, [this](const QKeyEvent& event) {
        if (event.isAutoRepeat())
            return false;
        setState(!m_state);
        return true;
    });
}

void LuEcoPrivacy::setState(bool state)
{
    const QString job = QStringLiteral("setState");
    if (!m_ecoPrivacyEnable || isSettled(job, m_state, state))
        return;
    const bool triggered = model()->isOtherFunctionTrigger(this);
    postUniqueAtFront(this, job, [this, state, triggered] {
        const bool differs = m_state.set(state);
        if (state)
            restoreTime();
        else if (m_activeTime != Off)
            writeTime(Off);
        setModuleSetting(StateKey, state);
        if (differs)
            Q_EMIT stateChanged();
        fireOnOff(LuDataCollection::setterSource(triggered));
    });
}

void LuEcoPrivacy::setActiveTime(ActiveTime time)
{
    if (!m_ecoPrivacyEnable || m_activeTime == time)
        return;
    ++m_directWrites;
    const bool sent = writeTime(time);
    ++m_directWrites;
    // A monitor may rest for longer than a caller may wait, after a change of the colour mode for one.
    if (!sent)
        postUniqueAtFront(this, QStringLiteral("sendTime"), [this, time] { sendTime(time); });
}

// A new time is written on its caller's thread: it may come while this job waits for the bus, and shall be
// the last on the wire.
void LuEcoPrivacy::restoreTime()
{
    int writes = 0;
    do {
        writes = m_directWrites;
        const ActiveTime time = m_activeTime;
        sendTime(time);
        if (time != Off)
            setModuleSetting(TimeKey, int(time));
    } while (writes % 2 != 0 || writes != m_directWrites);
}

bool LuEcoPrivacy::sendTime(int time)
{
    bool outOfTime = false;
    setVCP(TimeCode, time, outOfTime);
    qInfo() << "[LuEcoPrivacy] set EcoPrivacy activeTime: " << ActiveTime(time);
    return !outOfTime;
}

bool LuEcoPrivacy::writeTime(int time)
{
    const bool sent = sendTime(time);
    // Off changes the monitor alone: the chosen time is what comes back with the state.
    if (time == Off)
        return sent;
    const bool differs = m_activeTime.set(ActiveTime(time));
    setModuleSetting(TimeKey, time);
    if (differs)
        Q_EMIT activeTimeChanged();
    return sent;
}

void LuEcoPrivacy::setSensorSensitivity(SensorSensitivity sensitivity)
{
    const QString job = QStringLiteral("setSensorSensitivity");
    if (!m_ecoPrivacyEnable || isSettled(job, m_sensorSensitivity, sensitivity))
        return;
    postUniqueAtFront(this, job, [this, sensitivity] {
        takeAsked(m_sensorSensitivity, sensitivity, SensitivityKey,
                  "[LuEcoPrivacy] set EcoPrivacy Sensitivity: ", &LuEcoPrivacy::sensorSensitivityChanged,
                  [this, sensitivity] { setVCP(SensitivityCode, sensitivity); });
    });
}

void LuEcoPrivacy::setMode(EcoPrivacyMode mode)
{
    if (!m_ecoPrivacyEnable || m_type != BackGlow)
        return;
    postUniqueAtFront(this, QStringLiteral("setMode"), [this, mode] {
        takeAsked(m_mode, mode, ModeKey, "[LuEcoPrivacy] set EcoPrivacy Mode: ", &LuEcoPrivacy::modeChanged,
                  [this, mode] { setVCP(ModeCode, mode); });
    });
}

LuSyncTasks* LuEcoPrivacy::syncPeriodically()
{
    if (!m_ecoPrivacyEnable)
        return nullptr;
    auto* tasks = new LuSyncTasks(QStringLiteral("LuEcoPrivacy"));
    tasks->addTask([this, first = model()->isFirstTimeConnected()] { syncTime(first); });
    tasks->addTask([this] { syncSensitivity(); });
    if (m_type == BackGlow)
        tasks->addTask([this] { syncMode(); });
    return tasks;
}

void LuEcoPrivacy::syncTime(bool firstConnection)
{
    qInfo() << "[LuEcoPrivacy] sync:" << model()->modelName();
    const int writes = m_directWrites;
    int value = 0;
    const bool read = getVCP(TimeCode, value);
    qInfo() << "[LuEcoPrivacy] get LuEcoPrivacy state";
    // An answer that is older than the user's choice is none: the next round asks again.
    if (!read || writes % 2 != 0 || writes != m_directWrites)
        return;
    const bool on = value != Off;
    const bool differs = takeReported(
        m_state, on, StateKey, "[LuEcoPrivacy] sync EcoPrivacy state changed:", &LuEcoPrivacy::stateChanged);
    if (on)
        takeReported(m_activeTime, ActiveTime(value), TimeKey,
                     "[LuEcoPrivacy] sync EcoPrivacy activeTime changed:", &LuEcoPrivacy::activeTimeChanged);
    if (firstConnection && on)
        fireOnOff(LuDataCollection::SOURCE_FIRST_CONNECT);
    else if (differs)
        fireOnOff(LuDataCollection::SOURCE_SYNC);
}

void LuEcoPrivacy::syncSensitivity()
{
    int value = 0;
    const bool read = getVCP(SensitivityCode, value);
    qInfo() << "[LuEcoPrivacy] get LuEcoPrivacy Sensor Sensitivity level";
    if (read)
        takeReported(m_sensorSensitivity, SensorSensitivity(value), SensitivityKey,
                     "[LuEcoPrivacy] sync LuEcoPrivacy Sensor Sensitivity level changed:",
                     &LuEcoPrivacy::sensorSensitivityChanged);
}

void LuEcoPrivacy::syncMode()
{
    int value = 0;
    const bool read = getVCP(ModeCode, value);
    qInfo() << "[LuEcoPrivacy] get LuEcoPrivacy Mode";
    if (read)
        takeReported(m_mode, EcoPrivacyMode(value), ModeKey,
                     "[LuEcoPrivacy] sync LuEcoPrivacy Mode changed:", &LuEcoPrivacy::modeChanged);
}

void LuEcoPrivacy::fireExitEvent()
{
    if (m_state)
        fireOnOffEvent(LuDataCollection::ACT_ECO_PRIVACY, false, LuDataCollection::SOURCE_EXIT, {});
}

void LuEcoPrivacy::fireOnOff(LuDataCollection::TriggerSource source)
{
    fireOnOffEvent(LuDataCollection::ACT_ECO_PRIVACY, m_state, source, {});
}
