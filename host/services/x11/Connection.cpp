// SPDX-License-Identifier: Apache-2.0
#include "Connection.h"

#include <QDebug>

#include <array>
#include <cstring>

namespace services::x11 {

namespace {

/// In the order of Atom.
constexpr const char* atomNames[] = {
    "WM_STATE",
    "WM_CLASS",
    "RESOURCE_MANAGER",
    "_NET_ACTIVE_WINDOW",
    "_NET_CLIENT_LIST_STACKING",
    "_NET_CURRENT_DESKTOP",
    "_NET_FRAME_EXTENTS",
    "_GTK_FRAME_EXTENTS",
    "_NET_MOVERESIZE_WINDOW",
    "_NET_WM_PID",
    "_NET_WM_DESKTOP",
    "_NET_WM_STATE",
    "_NET_WM_STATE_FULLSCREEN",
    "_NET_WM_STATE_MAXIMIZED_HORZ",
    "_NET_WM_STATE_MAXIMIZED_VERT",
    "_NET_WM_WINDOW_TYPE",
    "_NET_WM_WINDOW_TYPE_NORMAL",
    "_NET_WM_WINDOW_TYPE_DIALOG",
    "CONNECTOR_ID",
    "_XSETTINGS_S0",
    "_XSETTINGS_SETTINGS",
};
static_assert(std::size(atomNames) == AtomCount);

/// In units of 32 bits: more than any property that is read here.
constexpr std::uint32_t LongestProperty = 1 << 18;

Owned<xcb_get_property_reply_t> property(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t name)
{
    return Owned<xcb_get_property_reply_t>(xcb_get_property_reply(
        connection,
        xcb_get_property(connection, 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, LongestProperty),
        nullptr));
}

} // namespace

std::shared_ptr<Connection> Connection::open()
{
    std::shared_ptr<Connection> made(new Connection);
    int number = 0;
    made->m_connection = xcb_connect(nullptr, &number);
    if (const int error = xcb_connection_has_error(made->m_connection)) {
        qWarning() << "[X11] no connection to the X server" << qgetenv("DISPLAY") << "error" << error;
        return nullptr;
    }
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(made->m_connection));
    for (; number > 0 && screens.rem > 1; --number)
        xcb_screen_next(&screens);
    made->m_screen = screens.data;
    made->internAtoms();
    return made;
}

Connection::~Connection()
{
    xcb_disconnect(m_connection);
}

void Connection::internAtoms()
{
    std::array<xcb_intern_atom_cookie_t, AtomCount> cookies;
    for (int i = 0; i < AtomCount; ++i)
        cookies[std::size_t(i)] =
            xcb_intern_atom(m_connection, 0, std::uint16_t(std::strlen(atomNames[i])), atomNames[i]);
    for (int i = 0; i < AtomCount; ++i) {
        const Owned<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(m_connection, cookies[std::size_t(i)], nullptr));
        m_atoms[i] = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    }
}

std::uint8_t Connection::opcode(xcb_extension_t* extension) const
{
    const xcb_query_extension_reply_t* reply = xcb_get_extension_data(m_connection, extension);
    return reply && reply->present ? reply->major_opcode : 0;
}

std::uint8_t Connection::firstEvent(xcb_extension_t* extension) const
{
    const xcb_query_extension_reply_t* reply = xcb_get_extension_data(m_connection, extension);
    return reply && reply->present ? reply->first_event : 0;
}

QList<std::uint32_t> Connection::values(xcb_window_t window, xcb_atom_t name) const
{
    const auto reply = property(m_connection, window, name);
    if (!reply || reply->format != 32)
        return {};
    const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return QList<std::uint32_t>(first, first + xcb_get_property_value_length(reply.get()) / 4);
}

QByteArray Connection::bytes(xcb_window_t window, xcb_atom_t name) const
{
    const auto reply = property(m_connection, window, name);
    if (!reply || reply->format != 8)
        return {};
    return QByteArray(static_cast<const char*>(xcb_get_property_value(reply.get())),
                      xcb_get_property_value_length(reply.get()));
}

std::uint32_t Connection::value(xcb_window_t window, xcb_atom_t name, std::uint32_t otherwise) const
{
    const QList<std::uint32_t> all = values(window, name);
    return all.isEmpty() ? otherwise : all.first();
}

void Connection::setValues(xcb_window_t window, xcb_atom_t name, xcb_atom_t type,
                           const QList<std::uint32_t>& list) const
{
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, name, type, 32,
                        std::uint32_t(list.size()), list.constData());
}

void Connection::tellWindowManager(xcb_window_t window, Atom message, const QList<std::uint32_t>& data) const
{
    xcb_client_message_event_t event = {};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom(message);
    for (qsizetype i = 0; i < data.size() && i < 5; ++i)
        event.data.data32[i] = data[i];
    xcb_send_event(m_connection, 0, root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&event));
}

void Connection::sync() const
{
    const Owned<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
}

} // namespace services::x11
