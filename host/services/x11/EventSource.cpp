// SPDX-License-Identifier: Apache-2.0
#include "EventSource.h"

#include <QAbstractEventDispatcher>
#include <QDebug>
#include <QThread>

namespace services::x11 {

namespace {

constexpr int MaskBits = 25;

} // namespace

std::unique_ptr<EventSource> EventSource::open()
{
    std::shared_ptr<Connection> connection = Connection::open();
    if (!connection)
        return nullptr;
    return std::unique_ptr<EventSource>(new EventSource(std::move(connection)));
}

EventSource::EventSource(std::shared_ptr<Connection> connection) : m_connection(std::move(connection))
{
    m_notifier =
        std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(*m_connection), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &EventSource::read);
    // A request that is sent may put events aside, too.
    if (QAbstractEventDispatcher* dispatcher = thread()->eventDispatcher())
        connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &EventSource::read);
}

EventSource::~EventSource() = default;

EventSource::Id EventSource::listen(Listener listener)
{
    m_listeners.emplace(++m_lastId, std::move(listener));
    return m_lastId;
}

void EventSource::forget(Id id)
{
    m_listeners.erase(id);
}

void EventSource::select(xcb_window_t window, std::uint32_t mask)
{
    std::map<std::uint32_t, int>& wanted = m_selected[window];
    std::uint32_t all = 0;
    for (int bit = 0; bit < MaskBits; ++bit) {
        if (mask & (1u << bit))
            ++wanted[1u << bit];
    }
    for (const auto& [bit, count] : wanted)
        all |= bit;
    xcb_change_window_attributes(*m_connection, window, XCB_CW_EVENT_MASK, &all);
    xcb_flush(*m_connection);
}

void EventSource::deselect(xcb_window_t window, std::uint32_t mask)
{
    std::map<std::uint32_t, int>& wanted = m_selected[window];
    for (int bit = 0; bit < MaskBits; ++bit) {
        const auto found = wanted.find(mask & (1u << bit));
        if (found != wanted.end() && --found->second <= 0)
            wanted.erase(found);
    }
    std::uint32_t all = 0;
    for (const auto& [bit, count] : wanted)
        all |= bit;
    if (wanted.empty())
        m_selected.erase(window);
    xcb_change_window_attributes(*m_connection, window, XCB_CW_EVENT_MASK, &all);
    xcb_flush(*m_connection);
}

void EventSource::read()
{
    while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(*m_connection)}) {
        // Errors are those of windows that went meanwhile.
        if (event->response_type == 0)
            continue;
        // A listener may forget itself or others while it is called.
        for (auto it = m_listeners.begin(); it != m_listeners.end();) {
            const Id id = it->first;
            const Listener listener = it->second;
            listener(*event);
            it = m_listeners.upper_bound(id);
        }
    }
    if (!m_connection->isAlive() && m_notifier->isEnabled()) {
        m_notifier->setEnabled(false);
        qWarning() << "[X11] the connection to the X server is lost";
    }
}

} // namespace services::x11
