#!/usr/bin/python3
"""A desktop's panel: owns the list of status items, and acts on the newest one as it is told.

Prints "ready" when it is. Each line of standard input is a JSON array and is answered with one line of JSON:
["item"]                                the item's properties
["menu", method, signature, arguments]  the answer to a call of the item's menu, {"error": name} for a refusal
["call", method, signature, arguments]  the same of the item itself
["signals"]                             the signals of the item and its menu since the last request
["registrations"]                       the bus names under which items were registered
["hosts", true]                         sets whether a host shows the items
"""

import json
import sys

import dbus
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"
PROPERTIES = "org.freedesktop.DBus.Properties"


def plain(value):
    """The value in the types of JSON; bytes as hexadecimal text."""
    if isinstance(value, dbus.Boolean):
        return bool(value)
    if isinstance(value, dbus.Array) and value.signature == "y":
        return bytes(value).hex()
    if isinstance(value, (tuple, list)):
        return [plain(element) for element in value]
    if isinstance(value, dict):
        return {str(key): plain(element) for key, element in value.items()}
    return value


class Watcher(dbus.service.Object):
    def __init__(self, bus, has_host):
        super().__init__(bus, "/StatusNotifierWatcher")
        self.bus = bus
        self.has_host = has_host
        self.registrations = []
        self.signals = []
        GLib.io_add_watch(sys.stdin, GLib.IO_IN, self.on_input)

    @dbus.service.method(WATCHER, in_signature="s")
    def RegisterStatusNotifierItem(self, name):
        self.registrations.append(name)
        for interface in (ITEM, MENU):
            self.bus.add_signal_receiver(self.on_signal, None, interface, name, member_keyword="member")

    @dbus.service.method(PROPERTIES, in_signature="ss", out_signature="v")
    def Get(self, _interface, _name):
        return dbus.Boolean(self.has_host, variant_level=1)

    @dbus.service.signal(WATCHER)
    def StatusNotifierHostRegistered(self):
        pass

    @dbus.service.signal(WATCHER)
    def StatusNotifierHostUnregistered(self):
        pass

    def on_signal(self, *arguments, member):
        self.signals.append([member, *plain(arguments)])

    def on_input(self, source, _condition):
        line = source.readline()
        if line:
            command, *arguments = json.loads(line)
            getattr(self, "do_" + command)(*arguments)
        return bool(line)

    def answer(self, value):
        print(json.dumps(value), flush=True)

    def ask(self, path, interface, method, signature, arguments, take):
        if not self.registrations:
            return self.answer({"error": "no item"})
        # Not a blocking call, whose answer would overtake the signals that were sent before it.
        self.bus.call_async(
            self.registrations[-1],
            path,
            interface,
            method,
            signature,
            arguments,
            lambda *results: take(plain(results[0] if len(results) == 1 else results)),
            lambda error: self.answer({"error": error.get_dbus_name()}),
        )

    def do_item(self):
        self.ask("/StatusNotifierItem", PROPERTIES, "GetAll", "s", [ITEM], self.answer)

    def do_call(self, method, signature, arguments):
        self.ask("/StatusNotifierItem", ITEM, method, signature, arguments, self.answer)

    def do_menu(self, method, signature, arguments):
        self.ask("/MenuBar", MENU, method, signature, arguments, self.answer)

    def do_signals(self):
        def take(_answer):
            signals, self.signals = self.signals, []
            self.answer(signals)

        self.ask("/StatusNotifierItem", "org.freedesktop.DBus.Peer", "Ping", "", [], take)

    def do_registrations(self):
        self.answer(plain(self.registrations))

    def do_hosts(self, has_host):
        self.has_host = has_host
        if has_host:
            self.StatusNotifierHostRegistered()
        else:
            self.StatusNotifierHostUnregistered()
        self.answer(None)


if __name__ == "__main__":
    DBusGMainLoop(set_as_default=True)
    session = dbus.SessionBus()
    watcher = Watcher(session, "--without-host" not in sys.argv)
    name = dbus.service.BusName(WATCHER, session)
    print("ready", flush=True)
    GLib.MainLoop().run()
