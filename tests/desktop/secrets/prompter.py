#!/usr/bin/python3
"""A stand-in for the desktop's password dialog, as gnome-keyring asks for it.

Usage: prompter.py answer PASSWORD | dismiss | wait

Prints "ready" when it is, and "prompt" for each dialog that a user would see. With "wait" the dialog stays open
until a line arrives on standard input: "dismiss", or "answer PASSWORD".
"""

import ctypes
import sys

import dbus
import dbus.service
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

PROMPTER = "org.gnome.keyring.internal.Prompter"
CALLBACK = PROMPTER + ".Callback"

# The password is sent over the bus encrypted, by the library that the real dialog uses.
gcr = ctypes.CDLL("libgcr-base-3.so.1")
gcr.gcr_secret_exchange_new.restype = ctypes.c_void_p
gcr.gcr_secret_exchange_new.argtypes = [ctypes.c_char_p]
gcr.gcr_secret_exchange_receive.argtypes = [ctypes.c_void_p, ctypes.c_char_p]
gcr.gcr_secret_exchange_begin.restype = ctypes.c_char_p
gcr.gcr_secret_exchange_begin.argtypes = [ctypes.c_void_p]
gcr.gcr_secret_exchange_send.restype = ctypes.c_char_p
gcr.gcr_secret_exchange_send.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_ssize_t]


def say(line):
    print(line, flush=True)


class Prompter(dbus.service.Object):
    def __init__(self, bus, answer):
        super().__init__(bus, "/org/gnome/keyring/Prompter")
        self.bus = bus
        self.answer = answer
        self.exchanges = {}
        self.waiting = None
        GLib.io_add_watch(sys.stdin, GLib.IO_IN, self.on_input)

    def callback(self, path, sender):
        return dbus.Interface(self.bus.get_object(sender, path, introspect=False), CALLBACK)

    def reply(self, path, sender, word, exchange):
        self.callback(path, sender).PromptReady(
            word, dbus.Dictionary({}, signature="sv"), exchange, reply_handler=lambda: None, error_handler=lambda _: None
        )

    @dbus.service.method(PROMPTER, in_signature="o", sender_keyword="sender")
    def BeginPrompting(self, path, sender):
        self.exchanges[path] = gcr.gcr_secret_exchange_new(None)
        begin = gcr.gcr_secret_exchange_begin(self.exchanges[path]).decode()
        GLib.idle_add(self.reply, path, sender, "", begin)

    @dbus.service.method(PROMPTER, in_signature="osa{sv}s", sender_keyword="sender")
    def PerformPrompt(self, path, kind, properties, exchange, sender):
        say("prompt")
        gcr.gcr_secret_exchange_receive(self.exchanges[path], exchange.encode())
        if self.answer == ["wait"]:
            self.waiting = (path, sender)
        else:
            self.give(path, sender, self.answer)

    @dbus.service.method(PROMPTER, in_signature="o", sender_keyword="sender")
    def StopPrompting(self, path, sender):
        say("closed")
        self.waiting = None
        self.callback(path, sender).PromptDone(reply_handler=lambda: None, error_handler=lambda _: None)

    def give(self, path, sender, answer):
        if answer[0] == "dismiss":
            self.reply(path, sender, "no", "")
            return
        sent = gcr.gcr_secret_exchange_send(self.exchanges[path], answer[1].encode(), -1).decode()
        self.reply(path, sender, "yes", sent)

    def on_input(self, source, _condition):
        line = source.readline().rstrip("\n")
        if line and self.waiting:
            path, sender = self.waiting
            self.waiting = None
            self.give(path, sender, line.split(" ", 1))
        return bool(line)


if __name__ == "__main__":
    DBusGMainLoop(set_as_default=True)
    session = dbus.SessionBus()
    name = dbus.service.BusName("org.gnome.keyring.SystemPrompter", session)
    prompter = Prompter(session, sys.argv[1:])
    say("ready")
    GLib.MainLoop().run()
