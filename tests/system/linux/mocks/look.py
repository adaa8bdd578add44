# SPDX-License-Identifier: Apache-2.0
"""The settings portal of a desktop for python-dbusmock.

Parameters: "scheme" and "contrast" (numbers), "animations" (bool). Change(space, key, value) tells of a new value.
"""

import dbus

BUS_NAME = "org.freedesktop.portal.Desktop"
MAIN_OBJ = "/org/freedesktop/portal/desktop"
MAIN_IFACE = "org.freedesktop.portal.Settings"
SYSTEM_BUS = True


def load(mock, parameters):
    mock.AddMethod(
        MAIN_IFACE,
        "ReadAll",
        "as",
        "a{sa{sv}}",
        "ret = dbus.Dictionary({"
        "'org.freedesktop.appearance': dbus.Dictionary({"
        f"'color-scheme': dbus.UInt32({int(parameters.get('scheme', 0))}), "
        f"'contrast': dbus.UInt32({int(parameters.get('contrast', 0))})}}, signature='sv'), "
        "'org.gnome.desktop.interface': dbus.Dictionary({"
        f"'enable-animations': dbus.Boolean({bool(parameters.get('animations', True))})}}, signature='sv')"
        "}, signature='sa{sv}')",
    )
    mock.AddMethod(
        MAIN_IFACE,
        "Change",
        "ssv",
        "",
        "self.EmitSignal('%s', 'SettingChanged', 'ssv', [args[0], args[1], args[2]])" % MAIN_IFACE,
    )
