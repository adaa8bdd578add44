// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuSharedGlobal.h>
#include <PanelCore/VCPNode.h>

#include <array>

/// One colour mode of a monitor with what it allows.
class LUSHARED_EXPORT LuVCPNode : public VCPNode
{
    Q_OBJECT
    Q_PROPERTY(VCPNode::FunctionEnable brightnessEnable READ brightnessEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable contrastEnable READ contrastEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable sharpnessEnable READ sharpnessEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable saturationEnable READ saturationEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable customColorTempEnable READ customColorTempEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable presetColorTempEnable READ presetColorTempEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable gammaEnable READ gammaEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable abEnable READ abEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable abOnBrightnessEnable READ abOnBrightnessEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable abOnPresetColorTempEnable READ abOnPresetColorTempEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable abOnCustomColorTempEnable READ abOnCustomColorTempEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable abOnSharpnessEnable READ abOnSharpnessEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable lowBlueLightEnable READ lowBlueLightEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable colorWeaknessEnable READ colorWeaknessEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable dualViewEnable READ dualViewEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable aiContrastEnable READ aiContrastEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable backlightControlEnable READ backlightControlEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable hueEnable READ hueEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable gamutEnable READ gamutEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable uniformityEnable READ uniformityEnable CONSTANT)
    Q_PROPERTY(
        VCPNode::FunctionEnable abPlusOnPresetColorTempEnable READ abPlusOnPresetColorTempEnable CONSTANT)
    Q_PROPERTY(
        VCPNode::FunctionEnable abPlusOnCustomColorTempEnable READ abPlusOnCustomColorTempEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable blcOnBrightnessEnable READ blcOnBrightnessEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable blcOnContrastEnable READ blcOnContrastEnable CONSTANT)
    Q_PROPERTY(VCPNode::FunctionEnable appleColorSyncEnable READ appleColorSyncEnable CONSTANT)
    Q_PROPERTY(bool isHdr READ isHdr CONSTANT)

public:
    // The numbers of these enumerations are stored and never change; LuBrightness knows their VCP values.

    enum Gamma : int {
        Gamma_18 = 0,
        Gamma_20 = 1,
        Gamma_sRGB = 2,
        Gamma_22 = 3,
        Gamma_24 = 4,
        Gamma_26 = 5,
        Gamma_16 = 6,
        Gamma_BT1886 = 7,
    };
    Q_ENUM(Gamma)

    enum Gamut : int {
        Gamut_sRGB = 0,
        Gamut_AdobeRGB = 1,
        Gamut_Native = 2,
        Gamut_DCIP3 = 3,
        Gamut_Rec709 = 4,
        Gamut_Rec2020 = 5,
    };
    Q_ENUM(Gamut)

    enum ColorTemperature : int {
        ColorTemperature_5000 = 0,
        ColorTemperature_6500 = 1,
        ColorTemperature_9300 = 2,
        ColorTemperature_UserDefine = 3,
        ColorTemperature_DCI = 4,
    };
    Q_ENUM(ColorTemperature)

    LuVCPNode(QObject* parent, int code, int shCode, const QString& type, const QString& name,
              const QString& category);
    ~LuVCPNode() override;

    void loadExtraValues(const QXmlStreamAttributes& attributes) override;

    FunctionEnable brightnessEnable() const { return flag(Brightness); }
    FunctionEnable contrastEnable() const { return flag(Contrast); }
    FunctionEnable sharpnessEnable() const { return flag(Sharpness); }
    FunctionEnable saturationEnable() const { return flag(Saturation); }
    FunctionEnable customColorTempEnable() const { return flag(CustomColorTemp); }
    FunctionEnable presetColorTempEnable() const { return flag(PresetColorTemp); }
    FunctionEnable gammaEnable() const { return flag(GammaChoice); }
    FunctionEnable abEnable() const { return flag(Ab); }
    FunctionEnable abOnBrightnessEnable() const { return flag(AbOnBrightness); }
    FunctionEnable abOnPresetColorTempEnable() const { return flag(AbOnPresetColorTemp); }
    FunctionEnable abOnCustomColorTempEnable() const { return flag(AbOnCustomColorTemp); }
    FunctionEnable abOnSharpnessEnable() const { return flag(AbOnSharpness); }
    FunctionEnable lowBlueLightEnable() const { return flag(LowBlueLight); }
    FunctionEnable colorWeaknessEnable() const { return flag(ColorWeakness); }
    FunctionEnable dualViewEnable() const { return flag(DualView); }
    FunctionEnable aiContrastEnable() const { return flag(AiContrast); }
    FunctionEnable backlightControlEnable() const { return flag(BacklightControl); }
    FunctionEnable hueEnable() const { return flag(Hue); }
    FunctionEnable gamutEnable() const { return flag(GamutChoice); }
    FunctionEnable uniformityEnable() const { return flag(Uniformity); }
    FunctionEnable abPlusOnPresetColorTempEnable() const { return flag(AbPlusOnPresetColorTemp); }
    FunctionEnable abPlusOnCustomColorTempEnable() const { return flag(AbPlusOnCustomColorTemp); }
    FunctionEnable blcOnBrightnessEnable() const { return flag(BlcOnBrightness); }
    FunctionEnable blcOnContrastEnable() const { return flag(BlcOnContrast); }
    FunctionEnable appleColorSyncEnable() const { return flag(AppleColorSync); }

    /// The mode is a high-dynamic-range mode.
    bool isHdr() const { return m_isHdr; }

private:
    enum Flag {
        Brightness,
        Contrast,
        Sharpness,
        Saturation,
        CustomColorTemp,
        PresetColorTemp,
        GammaChoice,
        Ab,
        AbOnBrightness,
        AbOnPresetColorTemp,
        AbOnCustomColorTemp,
        AbOnSharpness,
        LowBlueLight,
        ColorWeakness,
        DualView,
        AiContrast,
        BacklightControl,
        Hue,
        GamutChoice,
        Uniformity,
        AbPlusOnPresetColorTemp,
        AbPlusOnCustomColorTemp,
        BlcOnBrightness,
        BlcOnContrast,
        AppleColorSync,
        FlagCount,
    };
    static const std::array<const char*, FlagCount>& attributeNames();
    FunctionEnable flag(Flag which) const { return m_flags[which]; }

    std::array<FunctionEnable, FlagCount> m_flags;
    bool m_isHdr = false;
};
