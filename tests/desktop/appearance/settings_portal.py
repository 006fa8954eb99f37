#!/usr/bin/python3
"""A desktop's settings portal with the settings of its arguments, each GROUP/KEY=VALUE with a Python literal.

Prints "ready" when it is. A line GROUP/KEY=VALUE on standard input changes a setting and is printed when that is
done.
"""

import ast
import sys

import dbus
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

SETTINGS = "org.freedesktop.portal.Settings"


TYPES = {int: dbus.UInt32, bool: dbus.Boolean, str: dbus.String}


def parsed(line):
    name, value = line.split("=", 1)
    group, key = name.rsplit("/", 1)
    return group, key, ast.literal_eval(value)


class Portal(dbus.service.Object):
    def __init__(self, bus, settings):
        super().__init__(bus, "/org/freedesktop/portal/desktop")
        self.settings = {(group, key): value for group, key, value in map(parsed, settings)}
        GLib.io_add_watch(sys.stdin, GLib.IO_IN, self.on_input)

    @dbus.service.method(SETTINGS, in_signature="ss", out_signature="v")
    def Read(self, group, key):
        if (group, key) not in self.settings:
            raise dbus.DBusException("no such setting", name="org.freedesktop.portal.Error.NotFound")
        value = self.settings[group, key]
        # The answer is a variant in a variant.
        return TYPES[type(value)](value, variant_level=2)

    @dbus.service.signal(SETTINGS, signature="ssv")
    def SettingChanged(self, group, key, value):
        pass

    def on_input(self, source, _condition):
        line = source.readline().rstrip("\n")
        if line:
            group, key, value = parsed(line)
            self.settings[group, key] = value
            self.SettingChanged(group, key, TYPES[type(value)](value))
            print(line, flush=True)
        return bool(line)


if __name__ == "__main__":
    DBusGMainLoop(set_as_default=True)
    session = dbus.SessionBus()
    portal = Portal(session, sys.argv[1:])
    name = dbus.service.BusName("org.freedesktop.portal.Desktop", session)
    print("ready", flush=True)
    GLib.MainLoop().run()
