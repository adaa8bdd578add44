# SPDX-License-Identifier: Apache-2.0
"""The global shortcuts of a desktop portal, for python-dbusmock.

Parameters: "version" (int, 1) is that of the interface; "refuse" (bool) answers BindShortcuts as a person does who says no. Press() is a key press of the
person; Bound() tells what is bound, as "SESSION ID TRIGGER" lines.
"""

import dbus
import dbusmock

BUS_NAME = "org.freedesktop.portal.Desktop"
MAIN_OBJ = "/org/freedesktop/portal/desktop"
MAIN_IFACE = "org.freedesktop.portal.GlobalShortcuts"
SYSTEM_BUS = True

REQUEST_IFACE = "org.freedesktop.portal.Request"
SESSION_IFACE = "org.freedesktop.portal.Session"


def load(mock, parameters):
    mock.refuses = parameters.get("refuse", False)
    mock.bound = {}
    mock.AddProperties(MAIN_IFACE, {"version": dbus.UInt32(parameters.get("version", 1))})


def respond(mock, sender, options, code, results):
    path = "/org/freedesktop/portal/desktop/request/%s/%s" % (
        sender[1:].replace(".", "_"),
        options["handle_token"],
    )
    mock.AddObject(path, REQUEST_IFACE, {}, [("Close", "", "", "")])
    dbusmock.get_object(path).EmitSignal(
        REQUEST_IFACE, "Response", "ua{sv}", [dbus.UInt32(code), dbus.Dictionary(results, signature="sv")]
    )
    return dbus.ObjectPath(path)


@dbus.service.method(MAIN_IFACE, in_signature="a{sv}", out_signature="o", sender_keyword="sender")
def CreateSession(self, options, sender):
    session = "/org/freedesktop/portal/desktop/session/%s/%s" % (
        sender[1:].replace(".", "_"),
        options["session_handle_token"],
    )
    self.AddObject(session, SESSION_IFACE, {}, [("Close", "", "", "self.manager.bound.pop(self.path, None)")])
    dbusmock.get_object(session).manager = self
    self.bound[session] = None
    return respond(self, sender, options, 0, {"session_handle": session})


@dbus.service.method(MAIN_IFACE, in_signature="oa(sa{sv})sa{sv}", out_signature="o", sender_keyword="sender")
def BindShortcuts(self, session, shortcuts, parent, options, sender):
    if self.bound[str(session)] is not None:
        raise dbus.exceptions.DBusException("bound already", name="org.freedesktop.portal.Error.Failed")
    if self.refuses:
        return respond(self, sender, options, 1, {})
    self.bound[str(session)] = {str(name): str(values["preferred_trigger"]) for name, values in shortcuts}
    return respond(self, sender, options, 0, {})


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature="", out_signature="as")
def Bound(self):
    lines = []
    for shortcuts in self.bound.values():
        lines += ["%s %s" % pair for pair in (shortcuts or {}).items()]
    return dbus.Array(sorted(lines), signature="s")


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature="s", out_signature="")
def Press(self, shortcut):
    for session, shortcuts in self.bound.items():
        if shortcuts and shortcut in shortcuts:
            self.EmitSignal(
                MAIN_IFACE,
                "Activated",
                "osta{sv}",
                [dbus.ObjectPath(session), shortcut, dbus.UInt64(1), dbus.Dictionary({}, signature="sv")],
            )
