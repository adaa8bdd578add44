// SPDX-License-Identifier: Apache-2.0
#include "LuContrast.h"

#include <QHash>

#include <algorithm>
#include <cmath>

namespace {

// Below this ratio nobody can tell whether something is drawn or covered.
constexpr double Distinct = 1.3;

double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor blended(const QColor& ink, double opacity, const QColor& ground)
{
    const double share = ink.alphaF() * opacity;
    const auto part = [share](double above, double below) {
        return float(above * share + below * (1 - share));
    };
    return QColor::fromRgbF(part(ink.redF(), ground.redF()), part(ink.greenF(), ground.greenF()),
                            part(ink.blueF(), ground.blueF()));
}

/// The commonest colour: glyphs mostly cover less of their place than what is behind them, and their edges
/// are of many colours. Where heavy glyphs cover more, the next one that takes a good part.
QRgb groundOf(const QImage& image, const QRect& place, const QColor& ink)
{
    constexpr double GoodPart = 0.1;
    QHash<QRgb, int> counts;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x)
            ++counts[image.pixel(x, y) | 0xFF000000];
    }
    const auto commonest = [&counts](QRgb butNot) {
        auto best = counts.cend();
        for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
            if (it.key() != butNot && (best == counts.cend() || it.value() > best.value()))
                best = it;
        }
        return best;
    };
    const auto first = commonest(0);
    if (first.key() != ink.rgb())
        return first.key();
    const auto second = commonest(first.key());
    const bool isGround =
        second != counts.cend() && second.value() > GoodPart * place.width() * place.height();
    return isGround ? second.key() : first.key();
}

/// Whether any pixel goes a third of the way from the ground to the ink.
bool isDrawn(const QImage& image, const QRect& place, const QColor& ink, const QColor& ground)
{
    const double way = luminance(ink) - luminance(ground);
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            const double gone = luminance(QColor::fromRgb(image.pixel(x, y))) - luminance(ground);
            if (way > 0 ? gone > way / 3 : gone < way / 3)
                return true;
        }
    }
    return false;
}

} // namespace

double LuContrast::ratio(const QColor& a, const QColor& b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

std::optional<LuContrast::Seen> LuContrast::measure(const QImage& image, const QRectF& place,
                                                    const QColor& color, double opacity)
{
    const double scale = image.devicePixelRatio();
    const QRect area = QRectF(place.topLeft() * scale, place.size() * scale)
                           .toAlignedRect()
                           .adjusted(-1, -1, 1, 1)
                           .intersected(image.rect());
    if (area.isEmpty() || color.alpha() == 0)
        return std::nullopt;
    Seen seen;
    seen.ground = QColor::fromRgb(groundOf(image, area, color));
    seen.ink = blended(color, opacity, seen.ground);
    seen.ratio = ratio(seen.ink, seen.ground);
    if (seen.ratio >= Distinct && !isDrawn(image, area, seen.ink, seen.ground))
        return std::nullopt;
    return seen;
}
