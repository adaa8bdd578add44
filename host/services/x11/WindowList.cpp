// SPDX-License-Identifier: Apache-2.0
#include "WindowList.h"

#include <QMargins>

#include <algorithm>
#include <xcb/res.h>

namespace services::x11 {

namespace {

/// Frames of a window manager hold their application's window at most that deep.
constexpr int DeepestFrame = 3;

} // namespace

xcb_window_t WindowList::active() const
{
    return m_connection->value(m_connection->root(), m_connection->atom(NetActiveWindow));
}

unsigned long WindowList::pidOf(xcb_window_t window) const
{
    if (window == XCB_WINDOW_NONE)
        return 0;
    // What the server knows of the connection counts more than what the application says: in a container this
    // is a number of the container's own.
    if (m_connection->opcode(&xcb_res_id)) {
        const xcb_res_client_id_spec_t spec = {window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
        const Owned<xcb_res_query_client_ids_reply_t> reply(xcb_res_query_client_ids_reply(
            *m_connection, xcb_res_query_client_ids(*m_connection, 1, &spec), nullptr));
        if (reply) {
            auto ids = xcb_res_query_client_ids_ids_iterator(reply.get());
            for (; ids.rem > 0; xcb_res_client_id_value_next(&ids)) {
                if (xcb_res_client_id_value_value_length(ids.data) > 0)
                    return xcb_res_client_id_value_value(ids.data)[0];
            }
        }
    }
    return m_connection->value(window, m_connection->atom(NetWmPid));
}

xcb_window_t WindowList::clientIn(xcb_window_t frame) const
{
    QList<xcb_window_t> level = {frame};
    for (int depth = 0; depth < DeepestFrame && !level.isEmpty(); ++depth) {
        QList<xcb_window_t> below;
        for (const xcb_window_t window : std::as_const(level)) {
            if (window == XCB_WINDOW_NONE)
                continue;
            if (!m_connection->values(window, m_connection->atom(WmState)).isEmpty())
                return window;
            const Owned<xcb_query_tree_reply_t> tree(
                xcb_query_tree_reply(*m_connection, xcb_query_tree(*m_connection, window), nullptr));
            if (tree) {
                const xcb_window_t* children = xcb_query_tree_children(tree.get());
                below += QList<xcb_window_t>(children, children + xcb_query_tree_children_length(tree.get()));
            }
        }
        level = below;
    }
    return XCB_WINDOW_NONE;
}

QList<xcb_window_t> WindowList::stacked() const
{
    return m_connection->values(m_connection->root(), m_connection->atom(NetClientListStacking));
}

xcb_window_t WindowList::mainWindowOf(unsigned long pid) const
{
    if (pid == 0)
        return XCB_WINDOW_NONE;
    if (const xcb_window_t window = active(); window && pidOf(window) == pid)
        return window;
    const QList<xcb_window_t> windows = stacked();
    xcb_window_t dialog = XCB_WINDOW_NONE;
    for (auto it = windows.rbegin(); it != windows.rend(); ++it) {
        if (pidOf(*it) != pid)
            continue;
        const auto types = m_connection->values(*it, m_connection->atom(NetWmWindowType));
        if (types.isEmpty() || types.contains(m_connection->atom(NetWmWindowTypeNormal)))
            return *it;
        if (!dialog && types.contains(m_connection->atom(NetWmWindowTypeDialog)))
            dialog = *it;
    }
    return dialog;
}

QStringList WindowList::classesOf(unsigned long pid) const
{
    QStringList names;
    const QList<xcb_window_t> windows = stacked();
    for (const xcb_window_t window : windows) {
        if (pid == 0 || pidOf(window) != pid)
            continue;
        const QList<QByteArray> parts = m_connection->bytes(window, m_connection->atom(WmClass)).split('\0');
        for (const QByteArray& part : parts) {
            if (const QString name = QString::fromUtf8(part); !name.isEmpty() && !names.contains(name))
                names.append(name);
        }
    }
    return names;
}

std::optional<QRect> WindowList::geometryOf(xcb_window_t window) const
{
    const auto geometryCookie = xcb_get_geometry(*m_connection, window);
    const auto placeCookie = xcb_translate_coordinates(*m_connection, window, m_connection->root(), 0, 0);
    const Owned<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(*m_connection, geometryCookie, nullptr));
    const Owned<xcb_translate_coordinates_reply_t> place(
        xcb_translate_coordinates_reply(*m_connection, placeCookie, nullptr));
    if (!geometry || !place)
        return std::nullopt;
    return QRect(place->dst_x, place->dst_y, geometry->width, geometry->height);
}

bool WindowList::hasState(xcb_window_t window, Atom state) const
{
    return m_connection->values(window, m_connection->atom(NetWmState)).contains(m_connection->atom(state));
}

QMargins WindowList::extentsOf(xcb_window_t window, Atom property) const
{
    const QList<std::uint32_t> values = m_connection->values(window, m_connection->atom(property));
    if (values.size() != 4)
        return {};
    return QMargins(int(values[0]), int(values[2]), int(values[1]), int(values[3]));
}

} // namespace services::x11
