// SPDX-License-Identifier: Apache-2.0
#include "StackWatch.h"

namespace services::x11 {

namespace {

/// A window that comes above that often, each time within that many ms of the last, insists on its place. A
/// person who opens one menu after the other is slower, and most menus are new windows.
constexpr int MostTimes = 4;
constexpr int InsistingMs = 500;

/// Then it is left there for so long.
constexpr int RestMs = 10'000;

template <class Event>
const Event& as(const xcb_generic_event_t& event)
{
    return reinterpret_cast<const Event&>(event);
}

} // namespace

StackWatch::StackWatch(std::shared_ptr<EventSource> events, std::shared_ptr<Connection> requests)
    : m_events(std::move(events)), m_requests(std::move(requests))
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(0);
    QObject::connect(&m_soon, &QTimer::timeout, &m_soon, [this] { look(); });
}

StackWatch::~StackWatch()
{
    const QList<xcb_window_t> kept = m_kept;
    for (const xcb_window_t window : kept)
        drop(window);
}

void StackWatch::keep(xcb_window_t window)
{
    if (m_kept.contains(window))
        return;
    m_kept.append(window);
    if (m_kept.size() == 1) {
        // Every window that moves tells of it: only while there is something to keep.
        m_events->select(m_requests->root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
        m_events->connection().sync();
        m_listener = m_events->listen([this](const xcb_generic_event_t& event) { follow(event); });
    }
    raise(window, XCB_WINDOW_NONE);
}

void StackWatch::drop(xcb_window_t window)
{
    if (!m_kept.removeOne(window) || !m_kept.isEmpty())
        return;
    m_events->forget(m_listener);
    m_events->deselect(m_requests->root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
    m_soon.stop();
    m_rivals.clear();
}

void StackWatch::follow(const xcb_generic_event_t& event)
{
    switch (event.response_type & ~0x80) {
    case XCB_MAP_NOTIFY:
        if (!m_kept.contains(as<xcb_map_notify_event_t>(event).window))
            m_soon.start();
        break;
    case XCB_UNMAP_NOTIFY:
        m_rivals.remove(as<xcb_unmap_notify_event_t>(event).window);
        break;
    case XCB_DESTROY_NOTIFY:
        m_rivals.remove(as<xcb_destroy_notify_event_t>(event).window);
        break;
    case XCB_CONFIGURE_NOTIFY: {
        // Most are windows that move. One that was raised lies right above a kept window, or above one that
        // insists on lying there.
        const auto& change = as<xcb_configure_notify_event_t>(event);
        if (!m_kept.contains(change.window) &&
            (m_kept.contains(change.above_sibling) || insists(change.above_sibling)))
            m_soon.start();
        break;
    }
    default:
        break;
    }
}

void StackWatch::look()
{
    const Owned<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(*m_requests, xcb_query_tree(*m_requests, m_requests->root()), nullptr));
    if (!tree)
        return;
    // The lowest first.
    const xcb_window_t* all = xcb_query_tree_children(tree.get());
    const QList<xcb_window_t> windows(all, all + xcb_query_tree_children_length(tree.get()));
    const QList<xcb_window_t> kept = m_kept;
    QList<xcb_window_t> rivals;
    for (const xcb_window_t window : kept) {
        xcb_window_t highest = XCB_WINDOW_NONE;
        const qsizetype place = windows.indexOf(window);
        for (qsizetype i = place + 1; place >= 0 && i < windows.size(); ++i) {
            const xcb_window_t other = windows.at(i);
            if (kept.contains(other) || insists(other) || !isShown(other))
                continue;
            highest = other;
            if (!rivals.contains(other))
                rivals.append(other);
        }
        if (highest != XCB_WINDOW_NONE)
            raise(window, highest);
    }
    for (const xcb_window_t rival : std::as_const(rivals))
        note(rival);
}

bool StackWatch::insists(xcb_window_t window) const
{
    const auto rival = m_rivals.constFind(window);
    return rival != m_rivals.cend() && rival->times >= MostTimes && rival->last.elapsed() < RestMs;
}

void StackWatch::note(xcb_window_t window)
{
    Rival& rival = m_rivals[window];
    rival.times = rival.last.isValid() && rival.last.elapsed() < InsistingMs ? rival.times + 1 : 1;
    rival.last.start();
}

// Right above that window, or above everything.
void StackWatch::raise(xcb_window_t window, xcb_window_t above) const
{
    const std::uint32_t values[] = {above, XCB_STACK_MODE_ABOVE};
    if (above == XCB_WINDOW_NONE)
        xcb_configure_window(*m_requests, window, XCB_CONFIG_WINDOW_STACK_MODE, values + 1);
    else
        xcb_configure_window(*m_requests, window, XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE,
                             values);
    xcb_flush(*m_requests);
}

bool StackWatch::isShown(xcb_window_t window) const
{
    const Owned<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
        *m_requests, xcb_get_window_attributes(*m_requests, window), nullptr));
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE &&
           attributes->_class != XCB_WINDOW_CLASS_INPUT_ONLY;
}

} // namespace services::x11
