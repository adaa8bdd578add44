// SPDX-License-Identifier: Apache-2.0
#include "Pointer.h"

namespace services::x11 {

Pointer::Pointer(std::shared_ptr<Connection> connection, std::shared_ptr<RawInput> input)
    : m_connection(std::move(connection)), m_input(std::move(input))
{
}

Pointer::~Pointer()
{
    m_input->forget(m_listener);
}

bool Pointer::watch(Observer observer)
{
    m_input->forget(m_listener);
    m_listener = 0;
    m_observer = std::move(observer);
    if (!m_observer)
        return true;
    if (!m_input->isAvailable())
        return false;
    m_last = position();
    m_listener = m_input->listen({{}, [this](QPointF motion) { moved(motion); }});
    m_input->wantMotion(m_listener, true);
    return true;
}

void Pointer::moved(QPointF motion)
{
    const QPoint now = position();
    // A device that tells places moves as far as the pointer does.
    const QPointF step = motion.isNull() ? QPointF(now - m_last) : motion;
    m_last = now;
    if (step.isNull())
        return;
    const Observer observer = m_observer;
    observer(now, step);
}

QPoint Pointer::position() const
{
    const Owned<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
        *m_connection, xcb_query_pointer(*m_connection, m_connection->root()), nullptr));
    return reply ? QPoint(reply->root_x, reply->root_y) : QPoint();
}

void Pointer::moveTo(QPoint position)
{
    m_last = position;
    xcb_warp_pointer(*m_connection, XCB_WINDOW_NONE, m_connection->root(), 0, 0, 0, 0,
                     std::int16_t(position.x()), std::int16_t(position.y()));
    xcb_flush(*m_connection);
}

} // namespace services::x11
