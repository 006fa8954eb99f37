#!/usr/bin/python3
"""A fake PackageKit that follows a script: its argument is JSON, a list of steps for each method of a transaction.

A step is a signal with its arguments (["Package", 1, "larkspan;1.0;amd64;installed", ""]), ["fail", NAME] for an
error as the method's answer, or ["die"]. A method without a list finishes successfully with no result; an empty
list hangs. Prints "ready" when it is, and then each method call with its arguments as JSON.
"""

import json
import os
import sys

import dbus
import dbus.lowlevel
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

NAME = "org.freedesktop.PackageKit"
TRANSACTION = NAME + ".Transaction"
SIGNATURES = {"Package": "uss", "ErrorCode": "us", "Finished": "uu", "Destroy": ""}
SUCCESS = [["Finished", 1, 0]]


def say(*words):
    print(json.dumps(words), flush=True)


class Transaction(dbus.service.Object):
    def __init__(self, bus, path, play):
        super().__init__(bus, path)
        self.bus = bus
        self.path = path
        self.play = play

    def act(self, method):
        for name, *arguments in self.play.get(method, SUCCESS):
            if name == "die":
                os._exit(0)
            if name == "fail":
                raise dbus.DBusException("no", name=arguments[0])
            # After the answer to the method.
            GLib.idle_add(self.emit, name, arguments)

    def emit(self, name, arguments):
        signal = dbus.lowlevel.SignalMessage(self.path, TRANSACTION, name)
        signal.append(*arguments, signature=SIGNATURES[name])
        self.bus.send_message(signal)
        return False

    @dbus.service.method(TRANSACTION, in_signature="as")
    def SetHints(self, hints):
        say("SetHints", hints)

    @dbus.service.method(TRANSACTION, in_signature="tas")
    def Resolve(self, filters, packages):
        say("Resolve", filters, packages)
        self.act("Resolve")

    @dbus.service.method(TRANSACTION, in_signature="b")
    def RefreshCache(self, force):
        say("RefreshCache", bool(force))
        self.act("RefreshCache")

    @dbus.service.method(TRANSACTION, in_signature="t")
    def GetUpdates(self, filters):
        say("GetUpdates", filters)
        self.act("GetUpdates")

    @dbus.service.method(TRANSACTION)
    def Cancel(self):
        say("Cancel")


class PackageKit(dbus.service.Object):
    def __init__(self, bus, play):
        super().__init__(bus, "/org/freedesktop/PackageKit")
        self.bus = bus
        self.play = play
        self.count = 0

    @dbus.service.method(NAME, out_signature="o", async_callbacks=("answer", "fail"))
    def CreateTransaction(self, answer, fail):
        for step in self.play.get("CreateTransaction", [["answer"]]):
            if step[0] == "fail":
                fail(dbus.DBusException("no", name=step[1]))
            else:
                self.count += 1
                path = f"/{self.count}_transaction"
                Transaction(self.bus, path, self.play)
                answer(path)


if __name__ == "__main__":
    DBusGMainLoop(set_as_default=True)
    system = dbus.SystemBus()
    service = PackageKit(system, json.loads(sys.argv[1]))
    name = dbus.service.BusName(NAME, system)
    print("ready", flush=True)
    GLib.MainLoop().run()
