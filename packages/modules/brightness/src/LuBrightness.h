// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LuPictureValues.h"
#include "LuSoftwareDimming.h"

#include <LuShared/LuModelModuleInterface.h>
#include <LuShared/LuVCPNode.h>
#include <ZrCore/ZrShared.h>

#include <QList>
#include <QtQml/qqmlregistration.h>

#include <array>

/// Brightness, software dimming and the colour controls of a monitor.
///
/// Values belong to the colour mode and are stored under its name. Brightness goes to the monitor where the
/// model is supported, else to the operating system; the other controls then reach nothing.
/// LuBrightness.cpp holds the brightness and the module's life, LuBrightnessControls.cpp the other controls.
class LuBrightness : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool sixAxisEnable READ sixAxisEnable CONSTANT)
    Q_PROPERTY(bool brightnessSyncEnable READ brightnessSyncEnable CONSTANT)
    Q_PROPERTY(QList<int> supportedGamma READ supportedGamma CONSTANT)
    Q_PROPERTY(QList<int> supportedGamut READ supportedGamut CONSTANT)
    Q_PROPERTY(QList<int> supportedPresetColorTemp READ supportedPresetColorTemp CONSTANT)
    Q_PROPERTY(bool hardwareBrightnessEnable READ hardwareBrightnessEnable WRITE setHardwareBrightnessEnable
                   NOTIFY hardwareBrightnessEnableChanged)
    Q_PROPERTY(int displayBrightness READ displayBrightness WRITE setDisplayBrightness NOTIFY
                   displayBrightnessChanged)
    Q_PROPERTY(
        int displayContrast READ displayContrast WRITE setDisplayContrast NOTIFY displayContrastChanged)
    Q_PROPERTY(
        int displaySharpness READ displaySharpness WRITE setDisplaySharpness NOTIFY displaySharpnessChanged)
    Q_PROPERTY(LuVCPNode::ColorTemperature displayColorTemperature READ displayColorTemperature WRITE
                   setDisplayColorTemperature NOTIFY displayColorTemperatureChanged)
    Q_PROPERTY(int displayColorTemperatureR READ displayColorTemperatureR WRITE setDisplayColorTemperatureR
                   NOTIFY displayColorTemperatureRChanged)
    Q_PROPERTY(int displayColorTemperatureG READ displayColorTemperatureG WRITE setDisplayColorTemperatureG
                   NOTIFY displayColorTemperatureGChanged)
    Q_PROPERTY(int displayColorTemperatureB READ displayColorTemperatureB WRITE setDisplayColorTemperatureB
                   NOTIFY displayColorTemperatureBChanged)
    Q_PROPERTY(
        LuVCPNode::Gamma displayGamma READ displayGamma WRITE setDisplayGamma NOTIFY displayGammaChanged)
    Q_PROPERTY(
        LuVCPNode::Gamut displayGamut READ displayGamut WRITE setDisplayGamut NOTIFY displayGamutChanged)
    Q_PROPERTY(int displayHue READ displayHue WRITE setDisplayHue NOTIFY displayHueChanged)
    Q_PROPERTY(int displayHueR READ displayHueR WRITE setDisplayHueR NOTIFY displayHueRChanged)
    Q_PROPERTY(int displayHueY READ displayHueY WRITE setDisplayHueY NOTIFY displayHueYChanged)
    Q_PROPERTY(int displayHueG READ displayHueG WRITE setDisplayHueG NOTIFY displayHueGChanged)
    Q_PROPERTY(int displayHueC READ displayHueC WRITE setDisplayHueC NOTIFY displayHueCChanged)
    Q_PROPERTY(int displayHueB READ displayHueB WRITE setDisplayHueB NOTIFY displayHueBChanged)
    Q_PROPERTY(int displayHueM READ displayHueM WRITE setDisplayHueM NOTIFY displayHueMChanged)
    Q_PROPERTY(int displaySaturation READ displaySaturation WRITE setDisplaySaturation NOTIFY
                   displaySaturationChanged)
    Q_PROPERTY(int displaySaturationR READ displaySaturationR WRITE setDisplaySaturationR NOTIFY
                   displaySaturationRChanged)
    Q_PROPERTY(int displaySaturationY READ displaySaturationY WRITE setDisplaySaturationY NOTIFY
                   displaySaturationYChanged)
    Q_PROPERTY(int displaySaturationG READ displaySaturationG WRITE setDisplaySaturationG NOTIFY
                   displaySaturationGChanged)
    Q_PROPERTY(int displaySaturationC READ displaySaturationC WRITE setDisplaySaturationC NOTIFY
                   displaySaturationCChanged)
    Q_PROPERTY(int displaySaturationB READ displaySaturationB WRITE setDisplaySaturationB NOTIFY
                   displaySaturationBChanged)
    Q_PROPERTY(int displaySaturationM READ displaySaturationM WRITE setDisplaySaturationM NOTIFY
                   displaySaturationMChanged)
    Q_PROPERTY(bool displayUniformity READ displayUniformity WRITE setDisplayUniformity NOTIFY
                   displayUniformityChanged)
    Q_PROPERTY(bool backlightControlEnabled READ backlightControlEnabled WRITE setBacklightControlEnabled
                   NOTIFY backlightControlEnabledChanged)
    Q_PROPERTY(bool backlightControlOn READ backlightControlOn NOTIFY backlightControlOnChanged)
    Q_PROPERTY(LuSoftwareDimming* softwareDimming READ softwareDimming CONSTANT)
    Q_PROPERTY(int syncBaseline READ syncBaseline WRITE setSyncBaseline NOTIFY syncBaselineChanged)
    Q_PROPERTY(QString colorModeName READ colorModeName WRITE setColorModeName NOTIFY colorModeNameChanged)

public:
    /// Axes of hue and saturation; the first stands for the whole picture.
    enum SixAxis : int {
        SixAxisNotSupport = 0,
        SixAxisR = 1,
        SixAxisY = 2,
        SixAxisG = 3,
        SixAxisC = 4,
        SixAxisB = 5,
        SixAxisM = 6,
    };
    Q_ENUM(SixAxis)

    explicit LuBrightness(LuMonitorModel* model);
    ~LuBrightness() override;

    /// Hue and saturation are set for six axes and not for the whole picture.
    bool sixAxisEnable() const { return m_sixAxisEnable; }
    /// The monitor takes part in the brightness sync of several monitors.
    bool brightnessSyncEnable() const { return m_brightnessSyncEnable; }
    /// What the model offers, in schema order, as numbers of LuVCPNode's enumerations.
    QList<int> supportedGamma() const { return m_supportedGamma; }
    QList<int> supportedGamut() const { return m_supportedGamut; }
    QList<int> supportedPresetColorTemp() const { return m_supportedPresetColorTemp; }

    /// The monitor's own brightness may be written and read; while it may not, only the overlay follows.
    bool hardwareBrightnessEnable() const { return m_hardwareBrightnessEnable; }
    void setHardwareBrightnessEnable(bool enable);

    /// What the user sees, 0 to 100.
    int displayBrightness() const { return m_brightness; }
    /// The brightness on its way to the monitor; the present one if none is.
    int askedBrightness() const;
    /// Clamps to 0 to 100. With @p force also the present value is written again. With @p post it goes
    /// through the queue; without, older jobs are dropped and it is written before the call returns. @p
    /// byUser is what the signal tells.
    void setDisplayBrightness(int value, bool force = false, bool post = true, bool byUser = true);

    // As the monitor reports them. Each setter posts a job; a number that cannot be written is refused with a
    // warning.
    int displayContrast() const { return valueOf(Contrast); }
    void setDisplayContrast(int value) { setControl(Contrast, value); }
    int displaySharpness() const { return valueOf(Sharpness); }
    void setDisplaySharpness(int value) { setControl(Sharpness, value); }
    LuVCPNode::ColorTemperature displayColorTemperature() const
    {
        return LuVCPNode::ColorTemperature(valueOf(ColorTemperature));
    }
    void setDisplayColorTemperature(LuVCPNode::ColorTemperature value)
    {
        setControl(ColorTemperature, value);
    }
    int displayColorTemperatureR() const { return valueOf(ColorTemperatureR); }
    void setDisplayColorTemperatureR(int value) { setControl(ColorTemperatureR, value); }
    int displayColorTemperatureG() const { return valueOf(ColorTemperatureG); }
    void setDisplayColorTemperatureG(int value) { setControl(ColorTemperatureG, value); }
    int displayColorTemperatureB() const { return valueOf(ColorTemperatureB); }
    void setDisplayColorTemperatureB(int value) { setControl(ColorTemperatureB, value); }
    LuVCPNode::Gamma displayGamma() const { return LuVCPNode::Gamma(valueOf(Gamma)); }
    void setDisplayGamma(LuVCPNode::Gamma value) { setControl(Gamma, value); }
    LuVCPNode::Gamut displayGamut() const { return LuVCPNode::Gamut(valueOf(Gamut)); }
    void setDisplayGamut(LuVCPNode::Gamut value) { setControl(Gamut, value); }
    int displayHue() const { return valueOf(Hue); }
    void setDisplayHue(int value) { setControl(Hue, value); }
    int displayHueR() const { return valueOf(HueR); }
    void setDisplayHueR(int value) { setControl(HueR, value); }
    int displayHueY() const { return valueOf(HueY); }
    void setDisplayHueY(int value) { setControl(HueY, value); }
    int displayHueG() const { return valueOf(HueG); }
    void setDisplayHueG(int value) { setControl(HueG, value); }
    int displayHueC() const { return valueOf(HueC); }
    void setDisplayHueC(int value) { setControl(HueC, value); }
    int displayHueB() const { return valueOf(HueB); }
    void setDisplayHueB(int value) { setControl(HueB, value); }
    int displayHueM() const { return valueOf(HueM); }
    void setDisplayHueM(int value) { setControl(HueM, value); }
    int displaySaturation() const { return valueOf(Saturation); }
    void setDisplaySaturation(int value) { setControl(Saturation, value); }
    int displaySaturationR() const { return valueOf(SaturationR); }
    void setDisplaySaturationR(int value) { setControl(SaturationR, value); }
    int displaySaturationY() const { return valueOf(SaturationY); }
    void setDisplaySaturationY(int value) { setControl(SaturationY, value); }
    int displaySaturationG() const { return valueOf(SaturationG); }
    void setDisplaySaturationG(int value) { setControl(SaturationG, value); }
    int displaySaturationC() const { return valueOf(SaturationC); }
    void setDisplaySaturationC(int value) { setControl(SaturationC, value); }
    int displaySaturationB() const { return valueOf(SaturationB); }
    void setDisplaySaturationB(int value) { setControl(SaturationB, value); }
    int displaySaturationM() const { return valueOf(SaturationM); }
    void setDisplaySaturationM(int value) { setControl(SaturationM, value); }
    bool displayUniformity() const { return m_uniformity; }
    void setDisplayUniformity(bool on);

    /// The panel offers back-light control now.
    bool backlightControlEnabled() const { return m_backlightControlEnabled; }
    void setBacklightControlEnabled(bool enabled);
    /// The monitor reports back-light control as active.
    bool backlightControlOn() const { return m_backlightControlOn; }

    LuSoftwareDimming* softwareDimming() const { return m_softwareDimming; }

    /// Reference value of the brightness sync of several monitors.
    int syncBaseline() const { return m_syncBaseline; }
    void setSyncBaseline(int baseline);

    /// Display name of the colour mode; empty without one. An unknown name changes nothing.
    QString colorModeName() const;
    void setColorModeName(const QString& name);

    void readSchema(const QByteArray& schema) override;
    void onInitialSync() override;
    LuSyncTasks* syncPeriodically() override;
    void loadSettings() override;
    void applyValues() override;
    void registerShortcutActions() override;

Q_SIGNALS:
    void hardwareBrightnessEnableChanged();
    void displayBrightnessChanged(bool byUser = false);
    void displayContrastChanged();
    void displaySharpnessChanged();
    void displayColorTemperatureChanged();
    void displayColorTemperatureRChanged();
    void displayColorTemperatureGChanged();
    void displayColorTemperatureBChanged();
    void displayGammaChanged();
    void displayGamutChanged();
    void displayHueChanged();
    void displayHueRChanged();
    void displayHueYChanged();
    void displayHueGChanged();
    void displayHueCChanged();
    void displayHueBChanged();
    void displayHueMChanged();
    void displaySaturationChanged();
    void displaySaturationRChanged();
    void displaySaturationYChanged();
    void displaySaturationGChanged();
    void displaySaturationCChanged();
    void displaySaturationBChanged();
    void displaySaturationMChanged();
    void displayUniformityChanged();
    void backlightControlEnabledChanged();
    void backlightControlOnChanged();
    void syncBaselineChanged();
    void colorModeNameChanged();

private:
    friend class LuSoftwareDimming;

    /// The controls whose value is a number, in the order of their table.
    enum ControlId {
        Contrast,
        Sharpness,
        ColorTemperature,
        ColorTemperatureR,
        ColorTemperatureG,
        ColorTemperatureB,
        Gamma,
        Gamut,
        Hue,
        HueR,
        HueY,
        HueG,
        HueC,
        HueB,
        HueM,
        Saturation,
        SaturationR,
        SaturationY,
        SaturationG,
        SaturationC,
        SaturationB,
        SaturationM,
        ControlCount,
    };
    struct Control
    {
        const char* setting; ///< Name of the property.
        const char* name;    ///< In the log.
        int code;
        LuPictureValues::Kind kind;
        void (LuBrightness::*changed)();
    };
    struct Value
    {
        ZrShared<int> number{0};
        ZrShared<bool> known{false}; ///< Stored, set or read in this mode; nothing else is written at launch.
    };
    static const std::array<Control, ControlCount> Controls;

    // Brightness
    void changeMonitorBrightness(int value, bool byUser, bool byShortcut);
    void changeSystemBrightness(int value, bool byUser);
    void keepBrightness(int value);
    void announceReadBrightness() { Q_EMIT displayBrightnessChanged(false); }
    int hardwareValueOf(int brightness) const;
    /// False on a monitor of the series that has not told its brightness yet: 0 is nobody's choice then.
    bool hasBrightness() const;
    void syncBrightness(bool firstConnection);
    void syncSystemBrightness();
    void applyBrightness();
    void restoreDimming();
    bool stepBrightness(int direction);
    void fireBrightness(LuDataCollection::TriggerSource source);

    // Other controls
    int valueOf(ControlId id) const { return m_values[id].number; }
    QString modeKey(const char* name) const;
    bool modeHas(ControlId id) const;
    bool modeHasTemperature() const;
    int firstAxis() const { return m_sixAxisEnable ? SixAxisR : SixAxisNotSupport; }
    int lastAxis() const { return m_sixAxisEnable ? SixAxisM : SixAxisNotSupport; }
    void setControl(ControlId id, int number);
    void writeControl(ControlId id, int number);
    /// False if the monitor did not answer.
    bool syncControl(ControlId id);
    void syncColorTemperature();
    void syncAxes();
    void syncBacklightControl();
    void syncUniformity();
    void addControlTasks(LuSyncTasks* tasks);
    /// In another mode nothing is known until it is loaded, set or read.
    void forgetMode();
    void loadControls();
    void applyControls();
    void applyGroup(const char* name, const QList<ControlId>& ids);

    bool m_sixAxisEnable = false;
    bool m_brightnessSyncEnable = false;
    QList<int> m_supportedGamma;
    QList<int> m_supportedGamut;
    QList<int> m_supportedPresetColorTemp;
    LuSoftwareDimming* m_softwareDimming = nullptr;
    bool m_settingsLoaded = false; ///< Without, a launch writes what the members began with.
    bool m_byShortcut = false;     ///< Only while a shortcut's handler runs.
    ZrShared<bool> m_hardwareBrightnessEnable{true};
    ZrShared<int> m_brightness{0};
    ZrShared<bool> m_brightnessKnown{false};
    ZrShared<int> m_asked{0};      ///< Brightness of the latest setter call.
    ZrShared<int> m_askedCalls{0}; ///< Number of that call.
    ZrShared<int> m_takenCalls{0}; ///< Number of the call that was carried out last.
    std::array<Value, ControlCount> m_values;
    ZrShared<bool> m_uniformity{false};
    ZrShared<bool> m_uniformityKnown{false};
    ZrShared<bool> m_backlightControlEnabled{false};
    ZrShared<bool> m_backlightControlOn{false};
    ZrShared<int> m_syncBaseline{0};
};
