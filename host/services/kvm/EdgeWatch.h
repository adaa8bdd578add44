// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPoint>
#include <QPointF>
#include <QRect>

namespace services {

/// Side of a screen.
enum class Side { Left, Right, Top, Bottom };

/// The side opposite to one.
Side opposite(Side side);

/// Decides from a pointer's movements when a person wants to leave a screen through one of its sides.
///
/// The pointer has to be pushed on against the side, since it also stands there when somebody aims at a
/// scroll bar. After a crossing, and where the watch begins at the side, it has to come back into the screen
/// before the next one counts: otherwise a hand that moves on would switch to and fro. Pure logic; any
/// thread, one at a time.
class EdgeWatch
{
public:
    /// Device steps against the side that make a crossing, some 2 to 4 mm of the hand.
    static constexpr qreal Push = 100;
    /// A push that rests this long begins anew.
    static constexpr qint64 RestMs = 250;
    /// How far the pointer has to come back, in native coordinates.
    static constexpr int Retreat = 32;

    /// Watches a side from now on. Nothing is crossed while the rectangle is empty.
    void begin(const QRect& screen, Side side, QPoint position);
    void setScreen(const QRect& screen) { m_screen = screen; }

    /// A movement; true if it completes a crossing.
    bool move(QPoint position, QPointF motion, qint64 nowMs);

    /// Where along the side a position is, 0 at the top or left, 1 at the bottom or right.
    qreal along(QPoint position) const;

    /// The place inside of the screen beside its side, a retreat away, at a fraction along it.
    QPoint entrance(qreal along) const;

private:
    int distance(QPoint position) const;
    bool isBeside(QPoint position) const;

    QRect m_screen;
    Side m_side = Side::Right;
    bool m_armed = false;
    qreal m_pushed = 0;
    qint64 m_lastMs = 0;
};

} // namespace services
