// SPDX-License-Identifier: Apache-2.0
#include "Session.h"

#include <QByteArray>
#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace {

struct Free
{
    void operator()(void* reply) const { std::free(reply); }
};

template <class Reply>
using Owned = std::unique_ptr<Reply, Free>;

/// A compositing manager owns the selection of its screen.
bool hasCompositor(xcb_connection_t* connection, int screen)
{
    const QByteArray name = "_NET_WM_CM_S" + QByteArray::number(screen);
    const Owned<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, std::uint16_t(name.size()), name.constData()), nullptr));
    if (!atom)
        return false;
    const Owned<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

} // namespace

bool services::sessionBlendsWindows()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return true;
    int screen = 0;
    xcb_connection_t* connection = xcb_connect(nullptr, &screen);
    const bool blends = xcb_connection_has_error(connection) == 0 && hasCompositor(connection, screen);
    xcb_disconnect(connection);
    return blends;
}
