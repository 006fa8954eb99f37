#!/usr/bin/python3
"""A notification server with the capabilities of the arguments; it shows nothing and prints what it is asked.

Prints "ready" when it is, "asked" for each question about its capabilities and a line of JSON for each notice.
With "-mute" among the arguments it does not answer about its capabilities, with "-gated" it answers no notice
until a line "open" comes on standard input. A line "close ID" there closes a notice and is printed when that is
done.
"""

import json
import sys

import dbus
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

NAME = "org.freedesktop.Notifications"


def say(text):
    print(text, flush=True)


class Server(dbus.service.Object):
    def __init__(self, bus, arguments):
        super().__init__(bus, "/org/freedesktop/Notifications")
        self.is_mute = "-mute" in arguments
        self.is_gated = "-gated" in arguments
        self.capabilities = [argument for argument in arguments if not argument.startswith("-")]
        self.last_id = 0
        self.held_back = []
        GLib.io_add_watch(sys.stdin, GLib.IO_IN, self.on_input)

    @dbus.service.method(NAME, out_signature="as")
    def GetCapabilities(self):
        say("asked")
        if self.is_mute:
            raise dbus.DBusException("no", name="org.freedesktop.DBus.Error.Failed")
        return dbus.Array(self.capabilities, signature="s")

    @dbus.service.method(NAME, in_signature="susssasa{sv}i", out_signature="u", async_callbacks=("answer", "fail"))
    def Notify(self, app_name, replaces_id, icon, summary, body, actions, hints, expiry, answer, fail):
        self.last_id += 0 if replaces_id else 1
        names = ("app_name", "replaces_id", "icon", "summary", "body", "actions", "hints", "expiry")
        values = (app_name, replaces_id, icon, summary, body, actions, hints, expiry)
        say(json.dumps(dict(zip(names, values))))
        given = replaces_id or self.last_id
        if self.is_gated:
            self.held_back.append(lambda: answer(given))
        else:
            answer(given)

    @dbus.service.signal(NAME, signature="uu")
    def NotificationClosed(self, notification, reason):
        pass

    def on_input(self, source, _condition):
        line = source.readline().rstrip("\n")
        if line == "open":
            self.is_gated = False
            for answer in self.held_back:
                answer()
        elif line:
            self.NotificationClosed(int(line.removeprefix("close ")), 2)
            say(line)
        return bool(line)


if __name__ == "__main__":
    DBusGMainLoop(set_as_default=True)
    session = dbus.SessionBus()
    server = Server(session, sys.argv[1:])
    name = dbus.service.BusName(NAME, session)
    say("ready")
    GLib.MainLoop().run()
