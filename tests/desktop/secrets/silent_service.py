#!/usr/bin/python3
"""A Secret Service that never answers the method named in the first argument; "hello" for all methods.

Prints "ready" when it is, and each call that it does not answer.
"""

import sys

import dbus
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

SERVICE = "org.freedesktop.Secret.Service"
PATH = "/org/freedesktop/secrets"
swallowed = sys.argv[1]


def swallows(name):
    if swallowed not in (name, "hello"):
        return False
    print(name, flush=True)
    return True


class Prompt(dbus.service.Object):
    @dbus.service.method("org.freedesktop.Secret.Prompt", in_signature="s", async_callbacks=("answer", "fail"))
    def Prompt(self, window, answer, fail):
        if not swallows("Prompt"):
            answer()
            print("prompt", flush=True)


class Service(dbus.service.Object):
    @dbus.service.method(SERVICE, in_signature="sv", out_signature="vo", async_callbacks=("answer", "fail"))
    def OpenSession(self, algorithm, value, answer, fail):
        if swallows("OpenSession"):
            return
        if algorithm != "plain":
            fail(dbus.DBusException("only plain", name="org.freedesktop.DBus.Error.NotSupported"))
            return
        answer(dbus.String("", variant_level=1), dbus.ObjectPath(PATH + "/session/1"))

    @dbus.service.method(SERVICE, in_signature="a{ss}", out_signature="aoao", async_callbacks=("answer", "fail"))
    def SearchItems(self, attributes, answer, fail):
        if not swallows("SearchItems"):
            answer([], [dbus.ObjectPath(PATH + "/collection/login/1")])

    @dbus.service.method(SERVICE, in_signature="ao", out_signature="aoo", async_callbacks=("answer", "fail"))
    def Unlock(self, objects, answer, fail):
        if not swallows("Unlock"):
            answer([], dbus.ObjectPath(PATH + "/prompt/1"))

    @dbus.service.method(SERVICE, in_signature="s", out_signature="o", async_callbacks=("answer", "fail"))
    def ReadAlias(self, name, answer, fail):
        if not swallows("ReadAlias"):
            answer(dbus.ObjectPath(PATH + "/collection/login"))

    @dbus.service.method(
        "org.freedesktop.DBus.Properties", in_signature="s", out_signature="a{sv}", async_callbacks=("answer", "fail")
    )
    def GetAll(self, interface, answer, fail):
        if not swallows("GetAll"):
            answer({"Collections": dbus.Array([], signature="o")})


if __name__ == "__main__":
    DBusGMainLoop(set_as_default=True)
    session = dbus.SessionBus()
    service = Service(session, PATH)
    prompt = Prompt(session, PATH + "/prompt/1")
    name = dbus.service.BusName("org.freedesktop.secrets", session)
    print("ready", flush=True)
    GLib.MainLoop().run()
