#!/usr/bin/python3
"""Unlocks gnome-keyring's default keyring without a prompt, as a login does. Usage: unlock_keyring.py PASSWORD"""

import sys

import dbus

service = dbus.SessionBus().get_object("org.freedesktop.secrets", "/org/freedesktop/secrets")
_, session = service.OpenSession(
    "plain", dbus.String("", variant_level=1), dbus_interface="org.freedesktop.Secret.Service"
)
password = dbus.Struct((session, dbus.ByteArray(b""), dbus.ByteArray(sys.argv[1].encode()), "text/plain"), signature="oayays")
service.UnlockWithMasterPassword(
    dbus.ObjectPath("/org/freedesktop/secrets/collection/login"),
    password,
    dbus_interface="org.gnome.keyring.InternalUnsupportedGuiltRiddenInterface",
)
