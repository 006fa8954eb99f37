#!/usr/bin/python3
"""Stores a secret in a second keyring beside the default one, and locks it.

Usage: store_in_locked_keyring.py PASSWORD SECRET NAME VALUE [NAME VALUE...]
"""

import sys

import dbus

SERVICE = "org.freedesktop.Secret.Service"
bus = dbus.SessionBus()
service = bus.get_object("org.freedesktop.secrets", "/org/freedesktop/secrets")
_, session = service.OpenSession("plain", dbus.String("", variant_level=1), dbus_interface=SERVICE)


def secret(text):
    return dbus.Struct((session, dbus.ByteArray(b""), dbus.ByteArray(text.encode()), "text/plain"), signature="oayays")


password, content, *attributes = sys.argv[1:]
collection = service.CreateWithMasterPassword(
    {"org.freedesktop.Secret.Collection.Label": "other"},
    secret(password),
    dbus_interface="org.gnome.keyring.InternalUnsupportedGuiltRiddenInterface",
)
properties = {
    "org.freedesktop.Secret.Item.Label": "another program's",
    "org.freedesktop.Secret.Item.Attributes": dbus.Dictionary(
        dict(zip(attributes[::2], attributes[1::2])), signature="ss"
    ),
}
bus.get_object("org.freedesktop.secrets", collection).CreateItem(
    properties, secret(content), False, dbus_interface="org.freedesktop.Secret.Collection"
)
service.Lock([collection], dbus_interface=SERVICE)
