# SPDX-License-Identifier: Apache-2.0
"""A location service for python-dbusmock: one client, which is given a place with its Start.

Parameters: "refuse" (bool) answers Start as a person does who says no; "silent" (bool) never finds a place;
"latitude", "longitude".
"""

import dbus
import dbusmock

BUS_NAME = "org.freedesktop.GeoClue2"
MAIN_OBJ = "/org/freedesktop/GeoClue2/Manager"
MAIN_IFACE = "org.freedesktop.GeoClue2.Manager"
SYSTEM_BUS = True

CLIENT = "/org/freedesktop/GeoClue2/Client/1"
CLIENT_IFACE = "org.freedesktop.GeoClue2.Client"
LOCATION_IFACE = "org.freedesktop.GeoClue2.Location"


def load(mock, parameters):
    mock.parameters_of_test = parameters
    mock.places = 0
    mock.AddMethod(MAIN_IFACE, "GetClient", "", "o", f"ret = dbus.ObjectPath('{CLIENT}')")
    mock.AddObject(
        CLIENT,
        CLIENT_IFACE,
        {
            "DesktopId": "",
            "RequestedAccuracyLevel": dbus.UInt32(0),
            "DistanceThreshold": dbus.UInt32(0),
            "Active": False,
        },
        [
            ("Start", "", "", START),
            ("Stop", "", "", "self.props['%s']['Active'] = False" % CLIENT_IFACE),
        ],
    )
    client = dbusmock.get_object(CLIENT)
    client.manager = mock


START = f"""
parameters = self.manager.parameters_of_test
if self.props['{CLIENT_IFACE}']['DesktopId'] == '':
    raise dbus.exceptions.DBusException('no desktop id', name='org.freedesktop.DBus.Error.AccessDenied')
if parameters.get('refuse'):
    raise dbus.exceptions.DBusException('refused', name='org.freedesktop.DBus.Error.AccessDenied')
self.props['{CLIENT_IFACE}']['Active'] = True
if not parameters.get('silent'):
    self.manager.Move(parameters['latitude'], parameters['longitude'])
"""


@dbus.service.method(dbusmock.MOCK_IFACE, in_signature="dd", out_signature="")
def Move(self, latitude, longitude):
    """The computer has moved."""
    before = f"/org/freedesktop/GeoClue2/Client/1/Location/{self.places}" if self.places else "/"
    self.places += 1
    now = f"/org/freedesktop/GeoClue2/Client/1/Location/{self.places}"
    self.AddObject(now, LOCATION_IFACE, {"Latitude": latitude, "Longitude": longitude, "Accuracy": 15000.0}, [])
    dbusmock.get_object(CLIENT).EmitSignal(
        CLIENT_IFACE, "LocationUpdated", "oo", [dbus.ObjectPath(before), dbus.ObjectPath(now)]
    )
