// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QImage>
#include <QRectF>

#include <optional>

/// How well something stands out from what is behind it, by the formula of WCAG 2.
namespace LuContrast {

/// What WCAG AA asks of a text, and of a large text or an icon.
constexpr double Small = 4.5;
constexpr double Large = 3;

struct Seen
{
    QColor ink;    ///< As it meets the eye: blended with the ground.
    QColor ground; ///< The commonest colour of the place.
    double ratio = 1;
};

/// Contrast ratio of two opaque colours, 1 to 21.
double ratio(const QColor& a, const QColor& b);

/// What is drawn in @p color with @p opacity at @p place (in the window's own pixels; the image's pixel ratio
/// is taken into account). Nothing where something else covers it, or the place lies outside of the picture.
std::optional<Seen> measure(const QImage& image, const QRectF& place, const QColor& color, double opacity);

} // namespace LuContrast
