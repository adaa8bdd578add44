// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "EventSource.h"

#include <QHash>
#include <QPointF>

namespace services::x11 {

/// Movements and buttons of the pointer as the device reports them, whichever window it is over and whoever
/// has grabbed it (XInput 2.1). GUI thread.
class RawInput
{
public:
    struct Listener
    {
        std::function<void(int button, bool pressed)> button;
        /// @p motion in the device's steps; null for a device that tells places, not steps.
        std::function<void(QPointF motion)> motion;
    };
    using Id = int;

    explicit RawInput(std::shared_ptr<EventSource> events);
    ~RawInput();

    /// False if the server does not tell; listeners hear nothing then.
    bool isAvailable() const { return m_opcode != 0; }

    Id listen(Listener listener);
    /// Movements are asked for only while somebody wants them: they wake the program up to 1,000 times a
    /// second.
    void wantMotion(Id id, bool wanted);
    void forget(Id id);

private:
    struct Entry
    {
        Listener listener;
        bool motion = false;
    };

    void select();
    void handle(const xcb_generic_event_t& event);
    QPointF motionOf(const xcb_generic_event_t& event);
    bool isRelative(std::uint16_t device);

    const std::shared_ptr<EventSource> m_events;
    EventSource::Id m_listener = 0;
    std::uint8_t m_opcode = 0;
    std::map<Id, Entry> m_entries;
    QHash<std::uint16_t, bool> m_relative; ///< By device.
    Id m_lastId = 0;
    std::uint32_t m_selected = 0;
};

} // namespace services::x11
