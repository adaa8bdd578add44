// SPDX-License-Identifier: Apache-2.0
// The controls of the picture beside brightness.
#include "LuBrightness.h"

#include <LuShared/LuMonitorModel.h>

#include <QDebug>

namespace {

constexpr int BacklightControlCode = 0x13;
constexpr int UniformityCode = 0xFA;
constexpr int On = 1;
constexpr int Off = 0;
constexpr const char* UniformityName = "displayUniformity";

} // namespace

using Kind = LuPictureValues::Kind;

// clang-format off
const std::array<LuBrightness::Control, LuBrightness::ControlCount> LuBrightness::Controls{{
    // property                  in the log             code  kind                    signal
    {"displayContrast",          "contrast",            0x12, Kind::Plain,            &LuBrightness::displayContrastChanged},
    {"displaySharpness",         "sharpness",           0x87, Kind::Plain,            &LuBrightness::displaySharpnessChanged},
    {"displayColorTemperature",  "color temperature",   0x14, Kind::ColorTemperature, &LuBrightness::displayColorTemperatureChanged},
    {"displayColorTemperatureR", "color temperature R", 0x16, Kind::Plain,            &LuBrightness::displayColorTemperatureRChanged},
    {"displayColorTemperatureG", "color temperature G", 0x18, Kind::Plain,            &LuBrightness::displayColorTemperatureGChanged},
    {"displayColorTemperatureB", "color temperature B", 0x1A, Kind::Plain,            &LuBrightness::displayColorTemperatureBChanged},
    {"displayGamma",             "gamma",               0x72, Kind::Gamma,            &LuBrightness::displayGammaChanged},
    {"displayGamut",             "gamut",               0x5F, Kind::Gamut,            &LuBrightness::displayGamutChanged},
    {"displayHue",               "hue",                 0x90, Kind::Plain,            &LuBrightness::displayHueChanged},
    {"displayHueR",              "hue R",               0x9B, Kind::Plain,            &LuBrightness::displayHueRChanged},
    {"displayHueY",              "hue Y",               0x9C, Kind::Plain,            &LuBrightness::displayHueYChanged},
    {"displayHueG",              "hue G",               0x9D, Kind::Plain,            &LuBrightness::displayHueGChanged},
    {"displayHueC",              "hue C",               0x9E, Kind::Plain,            &LuBrightness::displayHueCChanged},
    {"displayHueB",              "hue B",               0x9F, Kind::Plain,            &LuBrightness::displayHueBChanged},
    {"displayHueM",              "hue M",               0xA0, Kind::Plain,            &LuBrightness::displayHueMChanged},
    {"displaySaturation",        "saturation",          0x8A, Kind::Plain,            &LuBrightness::displaySaturationChanged},
    {"displaySaturationR",       "saturation R",        0x59, Kind::Plain,            &LuBrightness::displaySaturationRChanged},
    {"displaySaturationY",       "saturation Y",        0x5A, Kind::Plain,            &LuBrightness::displaySaturationYChanged},
    {"displaySaturationG",       "saturation G",        0x5B, Kind::Plain,            &LuBrightness::displaySaturationGChanged},
    {"displaySaturationC",       "saturation C",        0x5C, Kind::Plain,            &LuBrightness::displaySaturationCChanged},
    {"displaySaturationB",       "saturation B",        0x5D, Kind::Plain,            &LuBrightness::displaySaturationBChanged},
    {"displaySaturationM",       "saturation M",        0x5E, Kind::Plain,            &LuBrightness::displaySaturationMChanged},
}};
// clang-format on

bool LuBrightness::modeHasTemperature() const
{
    return colorModeAllows(&LuVCPNode::customColorTempEnable) ||
           colorModeAllows(&LuVCPNode::presetColorTempEnable);
}

bool LuBrightness::modeHas(ControlId id) const
{
    // Either the six axes or the whole picture, as the model has it.
    const auto hasAxis = [&](ControlId whole) { return (id != whole) == m_sixAxisEnable; };
    if (id >= Saturation)
        return colorModeAllows(&LuVCPNode::saturationEnable) && hasAxis(Saturation);
    if (id >= Hue)
        return colorModeAllows(&LuVCPNode::hueEnable) && hasAxis(Hue);
    switch (id) {
    case Contrast:
        return colorModeAllows(&LuVCPNode::contrastEnable);
    case Sharpness:
        return colorModeAllows(&LuVCPNode::sharpnessEnable);
    case Gamma:
        return colorModeAllows(&LuVCPNode::gammaEnable);
    case Gamut:
        return colorModeAllows(&LuVCPNode::gamutEnable);
    default:
        return modeHasTemperature();
    }
}

void LuBrightness::setControl(ControlId id, int number)
{
    const Control& control = Controls[id];
    if (!LuPictureValues::isValid(control.kind, number)) {
        qWarning() << "[LuBrightness]" << control.name << "cannot be" << number;
        return;
    }
    QString key = QStringLiteral("set") + QString::fromLatin1(control.setting);
    key[3] = key[3].toUpper();
    if (isSettled(key, m_values[id].number, number))
        return;
    postUniqueAtFront(this, key, [this, id, number] {
        const Control& row = Controls[id];
        const QByteArray text = QByteArray("[LuBrightness] set ") + row.name + ':';
        m_values[id].known = true;
        takeAsked(m_values[id].number, number, modeKey(row.setting), text.constData(), row.changed,
                  [&] { writeControl(id, number); });
    });
}

// Without a schema nobody knows what the code does on this monitor.
void LuBrightness::writeControl(ControlId id, int number)
{
    if (model()->isModelSupported())
        setVCP(Controls[id].code, LuPictureValues::toVcp(Controls[id].kind, number));
}

void LuBrightness::setDisplayUniformity(bool on)
{
    const QString key = QStringLiteral("setDisplayUniformity");
    if (isSettled(key, m_uniformity, on))
        return;
    postUniqueAtFront(this, key, [this, on] {
        m_uniformityKnown = true;
        takeAsked(m_uniformity, on, modeKey(UniformityName),
                  "[LuBrightness] set uniformity:", &LuBrightness::displayUniformityChanged, [&] {
                      if (model()->isModelSupported())
                          setVCP(UniformityCode, on ? On : Off);
                  });
    });
}

void LuBrightness::addControlTasks(LuSyncTasks* tasks)
{
    if (modeHas(Contrast))
        tasks->addTask([this] { syncControl(Contrast); });
    if (modeHas(Sharpness))
        tasks->addTask([this] { syncControl(Sharpness); });
    if (modeHasTemperature())
        tasks->addTask([this] { syncColorTemperature(); });
    if (colorModeAllows(&LuVCPNode::hueEnable) || colorModeAllows(&LuVCPNode::saturationEnable))
        tasks->addTask([this] { syncAxes(); });
    if (modeHas(Gamma))
        tasks->addTask([this] { syncControl(Gamma); });
    if (modeHas(Gamut))
        tasks->addTask([this] { syncControl(Gamut); });
    if (colorModeAllows(&LuVCPNode::backlightControlEnable))
        tasks->addTask([this] { syncBacklightControl(); });
    if (colorModeAllows(&LuVCPNode::uniformityEnable))
        tasks->addTask([this] { syncUniformity(); });
}

bool LuBrightness::syncControl(ControlId id)
{
    const Control& control = Controls[id];
    int value = 0;
    if (!getVCP(control.code, value))
        return false;
    const QByteArray text = QByteArray("[LuBrightness] sync ") + control.name + " changed:";
    const int number = LuPictureValues::fromVcp(control.kind, value);
    // What is seen for the first time is kept also if it is what the member began with.
    if (!m_values[id].known.exchange(true))
        setModuleSetting(modeKey(control.setting), number);
    takeReported(m_values[id].number, number, modeKey(control.setting), text.constData(), control.changed);
    return true;
}

// Only the user's temperature has gains.
void LuBrightness::syncColorTemperature()
{
    if (!syncControl(ColorTemperature) || valueOf(ColorTemperature) != LuVCPNode::ColorTemperature_UserDefine)
        return;
    for (const ControlId id : {ColorTemperatureR, ColorTemperatureG, ColorTemperatureB})
        syncControl(id);
}

void LuBrightness::syncAxes()
{
    for (int axis = firstAxis(); axis <= lastAxis(); ++axis) {
        for (const ControlId id : {ControlId(Hue + axis), ControlId(Saturation + axis)}) {
            if (modeHas(id))
                syncControl(id);
        }
    }
}

void LuBrightness::syncBacklightControl()
{
    int value = 0;
    if (getVCP(BacklightControlCode, value))
        takeReported(
            m_backlightControlOn, value == On, QString(),
            "[LuBrightness] sync backlight control changed:", &LuBrightness::backlightControlOnChanged);
}

void LuBrightness::syncUniformity()
{
    int value = 0;
    if (!getVCP(UniformityCode, value))
        return;
    if (!m_uniformityKnown.exchange(true))
        setModuleSetting(modeKey(UniformityName), value == On);
    takeReported(m_uniformity, value == On, modeKey(UniformityName),
                 "[LuBrightness] sync uniformity changed:", &LuBrightness::displayUniformityChanged);
}

void LuBrightness::forgetMode()
{
    m_brightnessKnown = false;
    m_uniformityKnown = false;
    for (Value& value : m_values)
        value.known = false;
}

void LuBrightness::loadControls()
{
    for (int i = 0; i < ControlCount; ++i) {
        const auto id = ControlId(i);
        const QString key = modeKey(Controls[id].setting);
        if (!modeHas(id) || !hasModuleSetting(key))
            continue;
        bool isNumber = false;
        const int number = moduleSetting(key, QVariant()).toInt(&isNumber);
        if (!isNumber || !LuPictureValues::isValid(Controls[id].kind, number))
            continue;
        m_values[id].number = number;
        m_values[id].known = true;
    }
    const QString key = modeKey(UniformityName);
    if (colorModeAllows(&LuVCPNode::uniformityEnable) && hasModuleSetting(key)) {
        m_uniformity = moduleSetting(key, m_uniformity.get()).toBool();
        m_uniformityKnown = true;
    }
}

void LuBrightness::applyControls()
{
    const auto axesOf = [this](ControlId whole) {
        QList<ControlId> ids;
        for (int axis = firstAxis(); axis <= lastAxis(); ++axis)
            ids.append(ControlId(whole + axis));
        return ids;
    };
    applyGroup("contrast", {Contrast});
    applyGroup("sharpness", {Sharpness});
    applyGroup("color temperature", {ColorTemperature});
    if (valueOf(ColorTemperature) == LuVCPNode::ColorTemperature_UserDefine)
        applyGroup("custom color temperature", {ColorTemperatureR, ColorTemperatureG, ColorTemperatureB});
    applyGroup("hue", axesOf(Hue));
    applyGroup("saturation", axesOf(Saturation));
    applyGroup("gamma", {Gamma});
    applyGroup("gamut", {Gamut});
    if (colorModeAllows(&LuVCPNode::uniformityEnable) && (m_uniformityKnown || !m_settingsLoaded)) {
        qInfo() << "[LuBrightness] apply uniformity:" << m_uniformity;
        setVCP(UniformityCode, m_uniformity ? On : Off);
        Q_EMIT displayUniformityChanged();
    }
}

// What a mode never had stored is not restored: the first value of a member is nobody's choice.
void LuBrightness::applyGroup(const char* name, const QList<ControlId>& ids)
{
    QList<ControlId> known;
    QByteArray text = QByteArray("[LuBrightness] apply ") + name + ':';
    for (const ControlId id : ids) {
        if (!modeHas(id) || (!m_values[id].known && m_settingsLoaded))
            continue;
        known.append(id);
        text += ' ' + QByteArray::number(valueOf(id));
    }
    if (known.isEmpty())
        return;
    qInfo().noquote() << text;
    for (const ControlId id : known)
        writeControl(id, valueOf(id));
    for (const ControlId id : known)
        (this->*Controls[id].changed)();
}
