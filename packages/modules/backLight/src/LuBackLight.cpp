// SPDX-License-Identifier: Apache-2.0
#include "LuBackLight.h"

#include <LuShared/LuColorModeKey.h>
#include <LuShared/LuMonitorModel.h>
#include <ZrCore/ZrClock.h>

#include <QDebug>

namespace {

constexpr int StateCode = 0xD7;
constexpr int LightCode = 0xD9;
constexpr int ByteMask = 0xFF;
constexpr int StateMask = 0xF0;
constexpr int NonStopMask = 0x0F;
constexpr int MaximumBrightness = 10;
constexpr int MaximumTemperature = 7;

const QString StateName = QStringLiteral("state");
const QString BrightnessName = QStringLiteral("brightness");
const QString TemperatureName = QStringLiteral("colorTemperature");
const QString AngleName = QStringLiteral("angle");
const QString NonStopName = QStringLiteral("nonStopMode");
const QString StartTimeKey = QStringLiteral("dataCollection/startTime");

constexpr int packed(int high, int low)
{
    return ((high & ByteMask) << 8) | (low & ByteMask);
}

constexpr int highByte(int value)
{
    return (value >> 8) & ByteMask;
}

constexpr int lowByte(int value)
{
    return value & ByteMask;
}

bool fitsByte(const char* what, int value)
{
    if (value >= 0 && value <= ByteMask)
        return true;
    qWarning().nospace() << "[LuBackLight] " << what << " " << value << " is not in 0 to " << ByteMask;
    return false;
}

QString angleText(LuBackLight::BackLightAngle angle)
{
    switch (angle) {
    case LuBackLight::Angle_270:
        return QStringLiteral("270_degree");
    case LuBackLight::Angle_360:
        return QStringLiteral("360_degree");
    }
    return {};
}

} // namespace

LuBackLight::LuBackLight(LuMonitorModel* model) : LuModelModuleInterface(model)
{
    model->registerForceSyncPairs(model, QMetaMethod::fromSignal(&LuMonitorModel::colorModeChanged),
                                  QStringLiteral("LuBackLight"));
}

LuBackLight::~LuBackLight() = default;

void LuBackLight::readSchema(const QByteArray& schema)
{
    m_backLightEnable = loadVCPFunctionOnOffByCategory(schema, QStringLiteral("BackLightEnable"));
}

QString LuBackLight::key(const QString& name) const
{
    return colorModeSettingKey(model(), name);
}

void LuBackLight::loadSettings()
{
    if (!m_backLightEnable)
        return;
    m_previousState = m_state;
    m_brightness = moduleSetting(key(BrightnessName), m_brightness.get()).toInt() & ByteMask;
    m_colorTemperature = moduleSetting(key(TemperatureName), m_colorTemperature.get()).toInt() & ByteMask;
    m_angle = BackLightAngle(moduleSetting(key(AngleName), int(m_angle.get())).toInt() & ByteMask);
    m_state = BackLightState(moduleSetting(key(StateName), int(m_state.get())).toInt() & StateMask);
    m_nonStopMode = moduleSetting(key(NonStopName), m_nonStopMode.get()).toBool();
}

void LuBackLight::applyValues()
{
    // In a colour mode that nobody has used yet there is nothing to restore.
    if (!m_backLightEnable || !hasModuleSetting(key(StateName)))
        return;
    qInfo() << "[LuBackLight] apply BackLight state:" << m_state;
    qInfo() << "[LuBackLight] apply BackLight angle:" << m_angle;
    qInfo() << "[LuBackLight] apply BackLight nonStopMode: " << m_nonStopMode;
    writeState();
    Q_EMIT angleChanged();
    Q_EMIT stateChanged();
    Q_EMIT nonStopModeChanged();
    qInfo() << "[LuBackLight] apply BackLight colorTemperature: " << m_colorTemperature;
    qInfo() << "[LuBackLight] apply BackLight brightness: " << m_brightness;
    // A half out of its range that was never read or set is the monitor's own, and with it the pair.
    if (isKnown(BrightnessName, m_brightness, MaximumBrightness) &&
        isKnown(TemperatureName, m_colorTemperature, MaximumTemperature))
        writeLight();
    Q_EMIT brightnessChanged();
    Q_EMIT colorTemperatureChanged();
    if (m_state == Off && m_previousState == Off)
        model()->setSkipApplyValuesWithLaunchTime(this, true);
    fireState(LuDataCollection::SOURCE_LAUNCH);
    fireNonStop(LuDataCollection::SOURCE_LAUNCH);
}

bool LuBackLight::isKnown(const QString& name, int value, int maximum) const
{
    return (value >= 1 && value <= maximum) || hasModuleSetting(key(name));
}

int LuBackLight::packedState() const
{
    return packed(m_angle, int(m_state.get()) | (m_nonStopMode ? NonStopOn : NonStopOff));
}

// The setter of the state writes on its caller's thread, the others on the queue's: who was overtaken by the
// other's choice writes again, so that the last write holds both.
bool LuBackLight::sendState()
{
    for (;;) {
        const int value = packedState();
        bool outOfTime = false;
        setVCP(StateCode, value, outOfTime);
        if (packedState() == value)
            return !outOfTime;
    }
}

void LuBackLight::writeState()
{
    sendState();
}

void LuBackLight::writeLight()
{
    setVCP(LightCode, packed(m_colorTemperature, m_brightness));
}

void LuBackLight::setState(BackLightState state)
{
    if (!m_backLightEnable || !m_state.set(state))
        return;
    ++m_directWrites;
    const bool sent = sendState();
    ++m_directWrites;
    // A monitor may rest for longer than a caller may wait, after a change of the colour mode for one.
    if (!sent)
        postUniqueAtFront(this, QStringLiteral("writeState"), [this] { writeState(); });
    setModuleSetting(key(StateName), int(state));
    Q_EMIT stateChanged();
    fireState(LuDataCollection::setterSource(model()->isOtherFunctionTrigger(this)));
}

template <class T>
void LuBackLight::post(const QString& job, ZrShared<T>& member, T value, const QString& name,
                       void (LuBackLight::*write)(), void (LuBackLight::*changed)(),
                       std::function<void()> after)
{
    if (!m_backLightEnable || isSettled(job, member, value))
        return;
    postUniqueAtFront(this, job, [this, &member, value, name, write, changed, after = std::move(after)] {
        const bool differs = member.set(value);
        (this->*write)();
        setModuleSetting(key(name), int(value));
        if (differs)
            (this->*changed)();
        if (after)
            after();
    });
}

void LuBackLight::setBrightness(int brightness)
{
    if (fitsByte("brightness", brightness))
        post(QStringLiteral("setBrightness"), m_brightness, brightness, BrightnessName,
             &LuBackLight::writeLight, &LuBackLight::brightnessChanged);
}

void LuBackLight::setColorTemperature(int colorTemperature)
{
    if (fitsByte("color temperature", colorTemperature))
        post(QStringLiteral("setColorTemperature"), m_colorTemperature, colorTemperature, TemperatureName,
             &LuBackLight::writeLight, &LuBackLight::colorTemperatureChanged);
}

void LuBackLight::setAngle(BackLightAngle angle)
{
    if (fitsByte("angle", angle))
        post(QStringLiteral("setAngle"), m_angle, angle, AngleName, &LuBackLight::writeState,
             &LuBackLight::angleChanged);
}

void LuBackLight::setNonStopMode(bool on)
{
    post(QStringLiteral("setNonStopMode"), m_nonStopMode, on, NonStopName, &LuBackLight::writeState,
         &LuBackLight::nonStopModeChanged, [this] { fireNonStop(LuDataCollection::SOURCE_USER); });
}

LuSyncTasks* LuBackLight::syncPeriodically()
{
    if (!m_backLightEnable)
        return nullptr;
    auto* tasks = new LuSyncTasks(QStringLiteral("LuBackLight"));
    tasks->addTask([this] { syncLight(); });
    tasks->addTask([this, first = model()->isFirstTimeConnected()] { syncState(first); });
    return tasks;
}

void LuBackLight::syncLight()
{
    qInfo() << "[LuBackLight] sync:" << model()->modelName();
    int value = 0;
    if (!getVCP(LightCode, value))
        return;
    takeReportedOfMode(m_brightness, lowByte(value), key(BrightnessName),
                       "[LuBackLight] sync BackLight brightness changed:", &LuBackLight::brightnessChanged);
    takeReportedOfMode(
        m_colorTemperature, highByte(value), key(TemperatureName),
        "[LuBackLight] sync BackLight colorTemperature changed:", &LuBackLight::colorTemperatureChanged);
}

void LuBackLight::syncState(bool firstConnection)
{
    const int writes = m_directWrites;
    int value = 0;
    if (!getVCP(StateCode, value))
        return;
    // The answer is older than what the user chose while it was on its way: the next round asks again.
    if (writes % 2 != 0 || writes != m_directWrites)
        return;
    if (takeReportedOfMode(m_angle, BackLightAngle(highByte(value)), key(AngleName),
                           "[LuBackLight] sync BackLight angle changed:", &LuBackLight::angleChanged))
        fireUpdate(LuDataCollection::SOURCE_SYNC);
    const bool stateDiffers =
        takeReportedOfMode(m_state, BackLightState(lowByte(value) & StateMask), key(StateName),
                           "[LuBackLight] sync BackLight m_state changed:", &LuBackLight::stateChanged);
    const bool nonStopDiffers = takeReportedOfMode(
        m_nonStopMode, (lowByte(value) & NonStopMask) != 0, key(NonStopName),
        "[LuBackLight] sync BackLight nonStopMode changed:", &LuBackLight::nonStopModeChanged);
    if (firstConnection ? m_state != Off : stateDiffers)
        fireState(LuDataCollection::syncSource(firstConnection));
    if (firstConnection && m_nonStopMode)
        fireNonStop(LuDataCollection::SOURCE_FIRST_CONNECT);
    if (nonStopDiffers)
        fireNonStop(LuDataCollection::SOURCE_SYNC);
}

void LuBackLight::onFireUpdateSettingEventRequested(const QHash<QString, QVariant>& parameters,
                                                    LuDataCollection::TriggerSource)
{
    if (m_state != Off && parameters.value(AngleName).toInt() != m_angle)
        fireUpdate(LuDataCollection::SOURCE_USER);
}

void LuBackLight::fireExitEvent()
{
    if (m_state != Off)
        fireOnOffEvent(LuDataCollection::ACT_BACK_LIGHT, false, LuDataCollection::SOURCE_EXIT, {});
}

QList<QString> LuBackLight::parametersStrings() const
{
    return {angleText(m_angle)};
}

void LuBackLight::fireState(LuDataCollection::TriggerSource source)
{
    switch (m_state) {
    case Off:
        fireOnOffEvent(LuDataCollection::ACT_BACK_LIGHT, false, source, {});
        break;
    case On:
        fireOnOffEvent(LuDataCollection::ACT_BACK_LIGHT, true, source, parametersStrings());
        break;
    case Auto:
        keepStartTime();
        fireCustomEvent(LuDataCollection::ACT_BACK_LIGHT, QStringLiteral("auto_dimming"), source,
                        parametersStrings());
        break;
    }
}

void LuBackLight::fireNonStop(LuDataCollection::TriggerSource source)
{
    fireCustomEvent(LuDataCollection::ACT_BACK_LIGHT_SETTING,
                    m_nonStopMode ? QStringLiteral("on") : QStringLiteral("off"), source);
}

void LuBackLight::fireUpdate(LuDataCollection::TriggerSource source)
{
    fireCustomEvent(LuDataCollection::ACT_BACK_LIGHT, QStringLiteral("on_update_setting"), source,
                    parametersStrings());
}

void LuBackLight::keepStartTime()
{
    if (!hasModuleSetting(StartTimeKey))
        setModuleSetting(StartTimeKey, ZrClock::instance().now());
}
