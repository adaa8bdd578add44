// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QList>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace services::x11 {

struct FreeReply
{
    void operator()(void* reply) const { std::free(reply); }
};

/// A reply, an error or an event of xcb.
template <class Type>
using Owned = std::unique_ptr<Type, FreeReply>;

/// Atoms that are interned when a connection opens.
enum Atom {
    // clang-format off
    WmState, WmClass, ResourceManager,
    NetActiveWindow, NetClientListStacking, NetCurrentDesktop, NetFrameExtents, GtkFrameExtents,
    NetMoveResizeWindow, NetWmPid, NetWmDesktop, NetWmState, NetWmStateFullscreen,
    NetWmStateMaximizedHorz, NetWmStateMaximizedVert, NetWmWindowType, NetWmWindowTypeNormal,
    NetWmWindowTypeDialog, ConnectorId, XsettingsSelection, XsettingsSettings,
    // clang-format on
    AtomCount
};

/// One connection to the X server. Any thread may send requests and wait for their replies; events of it are
/// nobody's unless an EventSource reads them.
class Connection
{
public:
    /// Opens a connection to the server that the environment names. Null, with the reason in the log, if
    /// there is none.
    static std::shared_ptr<Connection> open();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    xcb_connection_t* xcb() const { return m_connection; }
    operator xcb_connection_t*() const { return m_connection; }
    xcb_window_t root() const { return m_screen->root; }
    xcb_atom_t atom(Atom atom) const { return m_atoms[atom]; }

    /// False once the server is gone; nothing is answered from then on.
    bool isAlive() const { return xcb_connection_has_error(m_connection) == 0; }

    /// Major opcode of an extension, 0 if the server does not have it.
    std::uint8_t opcode(xcb_extension_t* extension) const;
    std::uint8_t firstEvent(xcb_extension_t* extension) const;

    /// A property as a list of 32-bit values, or of bytes; empty if it is not there or of another format.
    QList<std::uint32_t> values(xcb_window_t window, xcb_atom_t property) const;
    QByteArray bytes(xcb_window_t window, xcb_atom_t property) const;
    std::uint32_t value(xcb_window_t window, xcb_atom_t property, std::uint32_t otherwise = 0) const;

    void setValues(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                   const QList<std::uint32_t>& values) const;

    /// A client message to the window manager about a window.
    void tellWindowManager(xcb_window_t window, Atom message, const QList<std::uint32_t>& data) const;

    /// Returns when the server has handled every request so far.
    void sync() const;

private:
    Connection() = default;
    void internAtoms();

    xcb_connection_t* m_connection = nullptr;
    xcb_screen_t* m_screen = nullptr;
    xcb_atom_t m_atoms[AtomCount] = {};
};

/// Keeps every other client waiting while it lives, so that they see a change of several steps as one.
class ServerGrab
{
public:
    explicit ServerGrab(const Connection& connection) : m_connection(connection)
    {
        xcb_grab_server(connection);
    }
    ~ServerGrab()
    {
        xcb_ungrab_server(m_connection);
        xcb_flush(m_connection);
    }
    ServerGrab(const ServerGrab&) = delete;
    ServerGrab& operator=(const ServerGrab&) = delete;

private:
    const Connection& m_connection;
};

} // namespace services::x11
