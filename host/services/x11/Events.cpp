// SPDX-License-Identifier: Apache-2.0
#include "Events.h"

#include "ScreenCoordinates.h"

#include <LuShared/LuPlatformNotifications.h>
#include <ZrCore/ZrDispatch.h>

#include <QDebug>

namespace services::x11 {

Events::Events(std::shared_ptr<EventSource> events, std::shared_ptr<Connection> requests,
               std::shared_ptr<Keyboard> keyboard, std::shared_ptr<RawInput> input)
    : m_events(std::move(events)), m_keyboard(std::move(keyboard)), m_input(std::move(input)),
      m_windows(requests), m_screens(*m_events, requests), m_placement(*m_events, m_windows),
      m_grabs(*m_events, m_keyboard)
{
    m_listener = m_events->listen([this](const xcb_generic_event_t& event) { handle(event); });
}

Events::~Events()
{
    stop();
    m_events->forget(m_listener);
}

void Events::start()
{
    if (m_started)
        return;
    m_started = true;
    m_recorder = KeyRecorder::start([this](const KeyRecorder::Stroke& stroke) { take(stroke); });
    m_active = std::make_unique<ActiveApplication>(*m_events, m_windows);
    m_drags = std::make_unique<DragWatch>(*m_input, m_windows);
    m_grabs.set(m_actionKeys);
}

void Events::stop()
{
    if (!m_started)
        return;
    m_started = false;
    m_grabs.set({});
    m_recorder.reset();
    m_drags.reset();
    m_active.reset();
    m_repeats.clear();
}

void Events::setActionKeys(const QSet<QKeyCombination>& keys)
{
    m_actionKeys = keys;
    if (m_started)
        m_grabs.set(keys);
}

void Events::handle(const xcb_generic_event_t& event)
{
    const int type = event.response_type & ~0x80;
    if (type == XCB_MAPPING_NOTIFY) {
        const auto request = reinterpret_cast<const xcb_mapping_notify_event_t&>(event).request;
        if (request == XCB_MAPPING_POINTER)
            return;
        m_keyboard->reload();
        m_grabs.renew();
    } else if ((type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE) && m_started && !m_recorder) {
        const auto& key = reinterpret_cast<const xcb_key_press_event_t&>(event);
        take({type == XCB_KEY_PRESS, key.detail, key.state, key.time});
    }
}

void Events::take(const KeyRecorder::Stroke& stroke)
{
    if (!stroke.pressed) {
        m_repeats.release(stroke.code);
        return;
    }
    const std::optional<bool> repeated = m_repeats.press(stroke.code, stroke.time);
    if (!repeated)
        return;
    const Keyboard::Meaning meaning = m_keyboard->meaningOf(stroke.code, stroke.state);
    // The state is that of before the press; a modifier counts from its own press on.
    raise(Keyboard::modifiersOf(stroke.state) | meaning.own, meaning.key, *repeated);
}

void Events::raise(Qt::KeyboardModifiers modifiers, Qt::Key key, bool repeated)
{
    if (const KeyHandler handler = m_handler)
        handler(modifiers, key, repeated);
    Q_EMIT LuPlatformNotifications::instance()->activeKeyEvent(modifiers, key, repeated);
}

void Events::setGeometry(unsigned long pid, const QRectF& geometry)
{
    ZrDispatch::main()->post(this, [this, pid, geometry] {
        xcb_window_t window = XCB_WINDOW_NONE;
        if (m_drags)
            window = m_drags->lastDragged();
        if (window == XCB_WINDOW_NONE || m_windows.pidOf(window) != pid)
            window = m_windows.mainWindowOf(pid);
        if (window == XCB_WINDOW_NONE)
            qInfo() << "[X11] process" << pid << "has no window to move";
        else
            m_placement.place(window, toNative(geometry));
    });
}

} // namespace services::x11
