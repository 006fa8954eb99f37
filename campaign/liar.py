#!/usr/bin/python3
"""Has the name of another program on the session bus, and answers every call with what nobody asked for.

usage: campaign/liar.py BUS_NAME
"""

import sys

import dbus
import dbus.lowlevel
from dbus.mainloop.glib import DBusGMainLoop
from gi.repository import GLib

METHOD_CALL = 1


def lie(connection, message) -> int:
    if message.get_type() != METHOD_CALL:
        return dbus.lowlevel.HANDLER_RESULT_NOT_YET_HANDLED
    if not message.get_no_reply():
        answer = dbus.lowlevel.MethodReturnMessage(message)
        answer.append("nonsense", dbus.Int32(-1), dbus.ObjectPath("/nowhere"))
        connection.send_message(answer)
    return dbus.lowlevel.HANDLER_RESULT_HANDLED


DBusGMainLoop(set_as_default=True)
bus = dbus.SessionBus()
bus.add_message_filter(lie)
bus.request_name(sys.argv[1])
print("ready", flush=True)
GLib.MainLoop().run()
