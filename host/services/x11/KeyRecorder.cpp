// SPDX-License-Identifier: Apache-2.0
#include "KeyRecorder.h"

#include <QCoreApplication>
#include <QDebug>
#include <QEvent>

#include <cstring>
#include <xcb/record.h>

namespace services::x11 {

namespace {

enum Category { FromServer = 0, EndOfData = 5 };

constexpr int EventSize = 32;

} // namespace

std::unique_ptr<KeyRecorder> KeyRecorder::start(Receiver receiver)
{
    std::unique_ptr<KeyRecorder> recorder(new KeyRecorder(std::move(receiver)));
    if (!recorder->begin()) {
        qWarning() << "[X11] the X server lets nobody record keys: keys of other applications are not heard";
        return nullptr;
    }
    return recorder;
}

bool KeyRecorder::begin()
{
    m_control = Connection::open();
    m_data = Connection::open();
    if (!m_control || !m_data || !m_control->opcode(&xcb_record_id) || !m_data->opcode(&xcb_record_id))
        return false;
    m_context = xcb_generate_id(*m_control);
    const xcb_record_client_spec_t everybody = XCB_RECORD_CS_ALL_CLIENTS;
    xcb_record_range_t keys = {};
    keys.device_events = {XCB_KEY_PRESS, XCB_KEY_RELEASE};
    const Owned<xcb_generic_error_t> error(xcb_request_check(
        *m_control, xcb_record_create_context_checked(*m_control, m_context, 0, 1, 1, &everybody, &keys)));
    if (error)
        return false;
    m_thread = std::thread([this] { record(); });
    return true;
}

KeyRecorder::~KeyRecorder()
{
    if (!m_thread.joinable())
        return;
    // The recording may not have begun yet; as long as it has not, there is nothing to end.
    xcb_record_disable_context(*m_control, m_context);
    xcb_record_free_context(*m_control, m_context);
    xcb_flush(*m_control);
    m_thread.join();
}

void KeyRecorder::record()
{
    const xcb_record_enable_context_cookie_t cookie = xcb_record_enable_context(*m_data, m_context);
    xcb_flush(*m_data);
    for (;;) {
        const Owned<xcb_record_enable_context_reply_t> reply(
            xcb_record_enable_context_reply(*m_data, cookie, nullptr));
        if (!reply || reply->category == EndOfData)
            return;
        if (reply->category == FromServer && !reply->client_swapped)
            take(xcb_record_enable_context_data(reply.get()),
                 xcb_record_enable_context_data_length(reply.get()));
    }
}

void KeyRecorder::take(const std::uint8_t* data, int length)
{
    {
        const std::lock_guard lock(m_mutex);
        for (; length >= EventSize; data += EventSize, length -= EventSize) {
            xcb_key_press_event_t event;
            std::memcpy(&event, data, sizeof event);
            const int type = event.response_type & ~0x80;
            if (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE)
                m_strokes.push_back({type == XCB_KEY_PRESS, event.detail, event.state, event.time});
        }
    }
    QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
}

bool KeyRecorder::event(QEvent* event)
{
    if (event->type() != QEvent::User)
        return QObject::event(event);
    std::vector<Stroke> strokes;
    {
        const std::lock_guard lock(m_mutex);
        strokes.swap(m_strokes);
    }
    for (const Stroke& stroke : strokes)
        m_receiver(stroke);
    return true;
}

} // namespace services::x11
