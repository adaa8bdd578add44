// SPDX-License-Identifier: Apache-2.0
#include "services/kvm/EdgeWatch.h"

#include <algorithm>

namespace services {

namespace {

bool isVertical(Side side)
{
    return side == Side::Left || side == Side::Right;
}

/// How far a movement goes out through a side.
qreal outwards(QPointF motion, Side side)
{
    switch (side) {
    case Side::Left:
        return -motion.x();
    case Side::Right:
        return motion.x();
    case Side::Top:
        return -motion.y();
    case Side::Bottom:
        return motion.y();
    }
    return 0;
}

} // namespace

Side opposite(Side side)
{
    switch (side) {
    case Side::Left:
        return Side::Right;
    case Side::Right:
        return Side::Left;
    case Side::Top:
        return Side::Bottom;
    case Side::Bottom:
        return Side::Top;
    }
    return side;
}

void EdgeWatch::begin(const QRect& screen, Side side, QPoint position)
{
    m_screen = screen;
    m_side = side;
    m_pushed = 0;
    m_armed = distance(position) >= Retreat;
}

int EdgeWatch::distance(QPoint position) const
{
    switch (m_side) {
    case Side::Left:
        return position.x() - m_screen.left();
    case Side::Right:
        return m_screen.right() - position.x();
    case Side::Top:
        return position.y() - m_screen.top();
    case Side::Bottom:
        return m_screen.bottom() - position.y();
    }
    return 0;
}

bool EdgeWatch::isBeside(QPoint position) const
{
    return isVertical(m_side) ? position.y() >= m_screen.top() && position.y() <= m_screen.bottom()
                              : position.x() >= m_screen.left() && position.x() <= m_screen.right();
}

bool EdgeWatch::move(QPoint position, QPointF motion, qint64 nowMs)
{
    if (m_screen.isEmpty())
        return false;
    if (distance(position) >= Retreat)
        m_armed = true;
    const qreal step = outwards(motion, m_side);
    // On a neighbouring screen of the same computer the distance is below 0: nothing holds the pointer there.
    if (distance(position) != 0 || !isBeside(position) || step < 0) {
        m_pushed = 0;
        return false;
    }
    if (nowMs - m_lastMs > RestMs)
        m_pushed = 0;
    m_lastMs = nowMs;
    m_pushed += step;
    if (!m_armed || m_pushed < Push)
        return false;
    m_armed = false;
    m_pushed = 0;
    return true;
}

qreal EdgeWatch::along(QPoint position) const
{
    const bool vertical = isVertical(m_side);
    const int length = (vertical ? m_screen.height() : m_screen.width()) - 1;
    const int at = vertical ? position.y() - m_screen.top() : position.x() - m_screen.left();
    return length > 0 ? std::clamp(qreal(at) / length, 0.0, 1.0) : 0.0;
}

QPoint EdgeWatch::entrance(qreal along) const
{
    const qreal share = std::clamp(along, 0.0, 1.0);
    const int inset = std::min(Retreat, std::min(m_screen.width(), m_screen.height()) / 2);
    const int x = m_screen.left() + qRound(share * (m_screen.width() - 1));
    const int y = m_screen.top() + qRound(share * (m_screen.height() - 1));
    switch (m_side) {
    case Side::Left:
        return {m_screen.left() + inset, y};
    case Side::Right:
        return {m_screen.right() - inset, y};
    case Side::Top:
        return {x, m_screen.top() + inset};
    case Side::Bottom:
        return {x, m_screen.bottom() - inset};
    }
    return m_screen.center();
}

} // namespace services
