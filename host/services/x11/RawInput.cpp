// SPDX-License-Identifier: Apache-2.0
#include "RawInput.h"

#include <QDebug>

#include <cmath>
#include <xcb/xinput.h>

namespace services::x11 {

namespace {

constexpr std::uint16_t NeededMajor = 2;
constexpr std::uint16_t NeededMinor = 1; // before, raw events stop while somebody has a grab

using RawEvent = xcb_input_raw_button_press_event_t; // all raw events have its form

bool isPressOrRelease(std::uint16_t type)
{
    return type == XCB_INPUT_RAW_BUTTON_PRESS || type == XCB_INPUT_RAW_BUTTON_RELEASE;
}

} // namespace

RawInput::RawInput(std::shared_ptr<EventSource> events) : m_events(std::move(events))
{
    const Connection& connection = m_events->connection();
    const std::uint8_t opcode = connection.opcode(&xcb_input_id);
    if (opcode) {
        const Owned<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
            connection, xcb_input_xi_query_version(connection, NeededMajor, NeededMinor), nullptr));
        if (version && (version->major_version > NeededMajor || version->minor_version >= NeededMinor))
            m_opcode = opcode;
    }
    if (!isAvailable()) {
        qWarning() << "[X11] the X server lacks XInput 2.1: dragged windows are not noticed";
        return;
    }
    m_listener = m_events->listen([this](const xcb_generic_event_t& event) { handle(event); });
}

RawInput::~RawInput()
{
    m_events->forget(m_listener);
    m_entries.clear();
    select();
}

RawInput::Id RawInput::listen(Listener listener)
{
    m_entries[++m_lastId].listener = std::move(listener);
    select();
    return m_lastId;
}

void RawInput::wantMotion(Id id, bool wanted)
{
    if (const auto found = m_entries.find(id); found != m_entries.end())
        found->second.motion = wanted;
    select();
}

void RawInput::forget(Id id)
{
    m_entries.erase(id);
    select();
}

void RawInput::select()
{
    if (!isAvailable())
        return;
    std::uint32_t wanted = 0;
    for (const auto& [id, entry] : m_entries) {
        if (entry.listener.button)
            wanted |= XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE;
        if (entry.motion)
            wanted |= XCB_INPUT_XI_EVENT_MASK_RAW_MOTION;
    }
    if (wanted == m_selected)
        return;
    m_selected = wanted;
    const struct
    {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } mask = {{XCB_INPUT_DEVICE_ALL_MASTER, 1}, wanted};
    const Connection& connection = m_events->connection();
    xcb_input_xi_select_events(connection, connection.root(), 1, &mask.head);
    xcb_flush(connection);
}

void RawInput::handle(const xcb_generic_event_t& event)
{
    const auto& generic = reinterpret_cast<const xcb_ge_generic_event_t&>(event);
    if ((event.response_type & ~0x80) != XCB_GE_GENERIC || generic.extension != m_opcode)
        return;
    const bool isMotion = generic.event_type == XCB_INPUT_RAW_MOTION;
    if (!isMotion && !isPressOrRelease(generic.event_type))
        return;
    const QPointF motion = isMotion ? motionOf(event) : QPointF();
    const auto& raw = reinterpret_cast<const RawEvent&>(event);
    for (auto it = m_entries.begin(); it != m_entries.end();) {
        const Id id = it->first;
        const Entry entry = it->second;
        if (isMotion && entry.motion)
            entry.listener.motion(motion);
        else if (!isMotion && entry.listener.button)
            entry.listener.button(int(raw.detail), generic.event_type == XCB_INPUT_RAW_BUTTON_PRESS);
        it = m_entries.upper_bound(id);
    }
}

QPointF RawInput::motionOf(const xcb_generic_event_t& event)
{
    const auto* raw = reinterpret_cast<const RawEvent*>(&event);
    if (!isRelative(raw->sourceid))
        return {};
    const std::uint32_t* mask = xcb_input_raw_button_press_valuator_mask(raw);
    const xcb_input_fp3232_t* value = xcb_input_raw_button_press_axisvalues_raw(raw);
    if (xcb_input_raw_button_press_valuator_mask_length(raw) < 1)
        return {};
    double axes[2] = {};
    for (std::uint32_t axis = 0; axis < 2; ++axis) {
        if (mask[0] & (1u << axis)) {
            axes[axis] = value->integral + std::ldexp(double(value->frac), -32);
            ++value;
        }
    }
    return QPointF(axes[0], axes[1]);
}

bool RawInput::isRelative(std::uint16_t device)
{
    const auto known = m_relative.constFind(device);
    if (known != m_relative.constEnd())
        return *known;
    bool relative = false;
    const Connection& connection = m_events->connection();
    const Owned<xcb_input_xi_query_device_reply_t> reply(
        xcb_input_xi_query_device_reply(connection, xcb_input_xi_query_device(connection, device), nullptr));
    if (reply) {
        auto infos = xcb_input_xi_query_device_infos_iterator(reply.get());
        for (; infos.rem > 0; xcb_input_xi_device_info_next(&infos)) {
            auto classes = xcb_input_xi_device_info_classes_iterator(infos.data);
            for (; classes.rem > 0; xcb_input_device_class_next(&classes)) {
                if (classes.data->type != XCB_INPUT_DEVICE_CLASS_TYPE_VALUATOR)
                    continue;
                const auto* valuator = reinterpret_cast<const xcb_input_valuator_class_t*>(classes.data);
                if (valuator->number == 0)
                    relative = valuator->mode == XCB_INPUT_VALUATOR_MODE_RELATIVE;
            }
        }
    }
    m_relative.insert(device, relative);
    return relative;
}

} // namespace services::x11
