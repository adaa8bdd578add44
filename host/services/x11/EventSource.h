// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Connection.h"

#include <QObject>
#include <QSocketNotifier>

#include <functional>
#include <map>
#include <memory>

namespace services::x11 {

/// Reads the events of a connection of its own on the GUI thread and hands them to everybody who listens.
///
/// Requests with replies go over another connection: while one waits for a reply, xcb puts events aside that
/// no socket tells of any more.
class EventSource : public QObject
{
public:
    using Listener = std::function<void(const xcb_generic_event_t& event)>;
    using Id = int;

    /// Null if there is no connection.
    static std::unique_ptr<EventSource> open();
    ~EventSource() override;

    const Connection& connection() const { return *m_connection; }

    Id listen(Listener listener);
    void forget(Id id);

    /// Adds to the core events that this connection gets from a window.
    void select(xcb_window_t window, std::uint32_t mask);
    /// Takes part of them back.
    void deselect(xcb_window_t window, std::uint32_t mask);

private:
    explicit EventSource(std::shared_ptr<Connection> connection);
    void read();

    const std::shared_ptr<Connection> m_connection;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::map<Id, Listener> m_listeners;
    std::map<xcb_window_t, std::map<std::uint32_t, int>> m_selected; ///< How often each bit is wanted.
    Id m_lastId = 0;
};

} // namespace services::x11
