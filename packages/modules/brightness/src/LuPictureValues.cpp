// SPDX-License-Identifier: Apache-2.0
#include "LuPictureValues.h"

#include <algorithm>
#include <span>

namespace {

struct Row
{
    int number;
    const char* text; ///< Empty where the schema has no name for it.
    int vcp;
};

constexpr Row Temperatures[] = {
    {LuVCPNode::ColorTemperature_5000, "5000", 4}, {LuVCPNode::ColorTemperature_6500, "6500", 5},
    {LuVCPNode::ColorTemperature_9300, "9300", 8}, {LuVCPNode::ColorTemperature_UserDefine, "", 11},
    {LuVCPNode::ColorTemperature_DCI, "DCI", 13},
};

constexpr Row Gammas[] = {
    {LuVCPNode::Gamma_18, "1.8", 80},     {LuVCPNode::Gamma_20, "2.0", 100},
    {LuVCPNode::Gamma_sRGB, "sRGB", 119}, {LuVCPNode::Gamma_22, "2.2", 120},
    {LuVCPNode::Gamma_24, "2.4", 140},    {LuVCPNode::Gamma_26, "2.6", 160},
    {LuVCPNode::Gamma_16, "1.6", 60},     {LuVCPNode::Gamma_BT1886, "BT 1886", 135},
};

constexpr Row Gamuts[] = {
    {LuVCPNode::Gamut_sRGB, "sRGB", 0},      {LuVCPNode::Gamut_AdobeRGB, "Adobe RGB", 1},
    {LuVCPNode::Gamut_Native, "Native", 2},  {LuVCPNode::Gamut_DCIP3, "DCI P3", 3},
    {LuVCPNode::Gamut_Rec709, "Rec 709", 4}, {LuVCPNode::Gamut_Rec2020, "Rec 2020", 5},
};

constexpr int LargestValue = 0xFFFF;

std::span<const Row> rowsOf(LuPictureValues::Kind kind)
{
    switch (kind) {
    case LuPictureValues::Kind::ColorTemperature:
        return Temperatures;
    case LuPictureValues::Kind::Gamma:
        return Gammas;
    case LuPictureValues::Kind::Gamut:
        return Gamuts;
    case LuPictureValues::Kind::Plain:
        break;
    }
    return {};
}

template <class Matches>
const Row* find(LuPictureValues::Kind kind, Matches matches)
{
    const std::span<const Row> rows = rowsOf(kind);
    const auto found = std::ranges::find_if(rows, matches);
    return found == rows.end() ? nullptr : &*found;
}

} // namespace

bool LuPictureValues::isValid(Kind kind, int number)
{
    if (kind == Kind::Plain)
        return number >= 0 && number <= LargestValue;
    return find(kind, [number](const Row& row) { return row.number == number; });
}

int LuPictureValues::toVcp(Kind kind, int number)
{
    const Row* row = find(kind, [number](const Row& each) { return each.number == number; });
    return row ? row->vcp : number;
}

int LuPictureValues::fromVcp(Kind kind, int value)
{
    if (kind == Kind::Plain)
        return value;
    const Row* row = find(kind, [value](const Row& each) { return each.vcp == value; });
    return row ? row->number : 0;
}

int LuPictureValues::fromText(Kind kind, const QString& text)
{
    const Row* row = find(
        kind, [&text](const Row& each) { return each.text[0] != '\0' && text == QLatin1String(each.text); });
    if (row)
        return row->number;
    return kind == Kind::Gamma ? LuVCPNode::Gamma_sRGB : 0;
}
