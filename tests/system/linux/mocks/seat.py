# SPDX-License-Identifier: Apache-2.0
"""The part of logind that sets a back-light, for python-dbusmock.

Parameters: "refuse" (bool) answers as to a session that is not the seat's. What was asked for is in the mock's
own list of calls (GetMethodCalls).
"""

BUS_NAME = "org.freedesktop.login1"
MAIN_OBJ = "/org/freedesktop/login1/session/auto"
MAIN_IFACE = "org.freedesktop.login1.Session"
SYSTEM_BUS = True


def load(mock, parameters):
    refusal = (
        "raise dbus.exceptions.DBusException('not in control', name='org.freedesktop.DBus.Error.AccessDenied')"
    )
    mock.AddMethod(MAIN_IFACE, "SetBrightness", "ssu", "", refusal if parameters.get("refuse") else "")
