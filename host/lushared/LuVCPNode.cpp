// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuVCPNode.h>

LuVCPNode::LuVCPNode(QObject* parent, int code, int shCode, const QString& type, const QString& name,
                     const QString& category)
    : VCPNode(parent, code, shCode, type, name, category)
{
    m_flags.fill(FunctionUndefined);
}

LuVCPNode::~LuVCPNode() = default;

const std::array<const char*, LuVCPNode::FlagCount>& LuVCPNode::attributeNames()
{
    static constexpr std::array<const char*, FlagCount> names = {
        "BrightnessEnable",
        "ContrastEnable",
        "SharpnessEnable",
        "SaturationEnable",
        "ColorTempCustomEnable",
        "ColorTempDefaultEnable",
        "GammaEnable",
        "ABEnable",
        "ABOnBrightnessEnable",
        "ABOnColorTempDefaultEnable",
        "ABOnColorTempCustomEnable",
        "ABOnSharpnessEnable",
        "LowBlueLightEnable",
        "ColorWeaknessEnable",
        "DualViewEnable",
        "AiContrastEnable",
        "BacklightControlEnable",
        "HueEnable",
        "GamutEnable",
        "UniformityEnable",
        "ABPlusOnColorTempDefaultEnable",
        "ABPlusOnColorTempCustomEnable",
        "BLCOnBrightnessEnable",
        "BLCOnContrastEnable",
        "AppleColorSyncEnable",
    };
    return names;
}

void LuVCPNode::loadExtraValues(const QXmlStreamAttributes& attributes)
{
    for (size_t i = 0; i < m_flags.size(); ++i) {
        const QLatin1String name(attributeNames()[i]);
        if (attributes.hasAttribute(name))
            m_flags[i] = attributes.value(name) == QLatin1String("on") ? FunctionOn : FunctionOff;
    }
    m_isHdr = attributes.value(QLatin1String("isHDR")) == QLatin1String("on");
}
