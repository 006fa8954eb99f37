"""Keyboard and mouse of a user on a Wayland desktop, as a program that speaks the protocols of virtual devices.

They stay plugged in from the beginning to the end: a device that comes for each key, as small tools have it, takes the
focus with it when it goes.
"""

import array
import os
import socket
import struct
import time
from pathlib import Path

DISPLAY, REGISTRY = 1, 2
SYNC, GET_REGISTRY, BIND = 0, 1, 0
KEYMAP, KEY, MODIFIERS = 0, 1, 2
MOVE, BUTTON, FRAME = 1, 2, 4
GET_TOKEN, COMMIT = 1, 3
LEFT_BUTTON = 0x110
CONTROL = 4

# By the numbers of the kernel.
KEYS = {"Escape": 1, "BackSpace": 14, "Tab": 15, "Return": 28, "ctrl": 29, "v": 47, "space": 57, "Up": 103, "Down": 108}
KEYBOARD = """xkb_keymap {
    xkb_keycodes { include "evdev+aliases(qwerty)" };
    xkb_types { include "complete" };
    xkb_compat { include "complete" };
    xkb_symbols { include "pc+us+inet(evdev)" };
};
"""


def _string(text: str) -> bytes:
    """Ends with a zero and fills whole words."""
    content = text.encode() + b"\0"
    return struct.pack("=I", len(content)) + content.ljust(-(-len(content) // 4) * 4, b"\0")


class Hands:
    def __init__(self, display: Path) -> None:
        self._socket = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        self._socket.settimeout(10)
        self._socket.connect(str(display))
        self._read = b""
        self._newest = REGISTRY
        self._offered: dict[str, int] = {}
        self._send(DISPLAY, GET_REGISTRY, REGISTRY)
        self._wait()
        seat = self._bind("wl_seat")
        self._keyboard = self._made_by(self._bind("zwp_virtual_keyboard_manager_v1"), seat)
        self._give_keymap()
        self._pointer = self._made_by(self._bind("zwlr_virtual_pointer_manager_v1"), seat)
        self._activation = self._bind("xdg_activation_v1")
        self._wait()

    def close(self) -> None:
        self._socket.close()

    def press(self, key: str) -> None:
        """A key by its name, also with ctrl+ before it."""
        *held, last = key.split("+")
        for name in held:
            self._send(self._keyboard, KEY, self._now(), KEYS[name], 1)
            self._send(self._keyboard, MODIFIERS, CONTROL, 0, 0, 0)
        for is_down in (1, 0):
            self._send(self._keyboard, KEY, self._now(), KEYS[last], is_down)
        for name in held:
            self._send(self._keyboard, KEY, self._now(), KEYS[name], 0)
            self._send(self._keyboard, MODIFIERS, 0, 0, 0, 0)
        self._wait()

    def point(self, place: tuple[int, int], size: tuple[int, int]) -> None:
        """Moves the mouse to a place of a display of that size."""
        self._send(self._pointer, MOVE, self._now(), *place, *size)
        self._send(self._pointer, FRAME)
        self._wait()

    def click(self) -> None:
        for is_down in (1, 0):
            self._send(self._pointer, BUTTON, self._now(), LEFT_BUTTON, is_down)
            self._send(self._pointer, FRAME)
            self._wait()

    def activation_token(self) -> str:
        """What a launcher gives to a program that it starts, so that this may take the focus."""
        token = self._new()
        self._send(self._activation, GET_TOKEN, token)
        self._send(token, COMMIT)
        content = self._wait_for(token)
        return content[4:4 + struct.unpack_from("=I", content)[0] - 1].decode()

    def _give_keymap(self) -> None:
        content = KEYBOARD.encode() + b"\0"
        memory = os.memfd_create("keymap")
        os.write(memory, content)
        message = struct.pack("=4I", self._keyboard, 16 << 16 | KEYMAP, 1, len(content))
        self._socket.sendmsg([message], [(socket.SOL_SOCKET, socket.SCM_RIGHTS, array.array("i", [memory]))])
        os.close(memory)

    def _bind(self, interface: str) -> int:
        new = self._new()
        self._send(REGISTRY, BIND, self._offered[interface], interface, 1, new)
        return new

    def _made_by(self, manager: int, seat: int) -> int:
        new = self._new()
        self._send(manager, 0, seat, new)
        return new

    def _new(self) -> int:
        self._newest += 1
        return self._newest

    def _now(self) -> int:
        return int(time.monotonic() * 1000) & 0xFFFFFFFF

    def _send(self, thing: int, what: int, *arguments: int | str) -> None:
        content = b"".join(_string(value) if isinstance(value, str) else struct.pack("=I", value) for value in arguments)
        self._socket.sendall(struct.pack("=2I", thing, 8 + len(content) << 16 | what) + content)

    def _wait(self) -> None:
        """Until the compositor has done all of it."""
        done = self._new()
        self._send(DISPLAY, SYNC, done)
        self._wait_for(done)

    def _wait_for(self, wanted: int) -> bytes:
        """The next event of one object."""
        while True:
            thing, what, content = self._event()
            if thing == wanted:
                return content
            if thing == REGISTRY and what == 0:
                name, length = struct.unpack_from("=2I", content)
                self._offered[content[8:8 + length - 1].decode()] = name
            assert (thing, what) != (DISPLAY, 0), f"the compositor refuses: {content!r}"

    def _event(self) -> tuple[int, int, bytes]:
        head = self._take(8)
        thing, rest = struct.unpack("=2I", head)
        return thing, rest & 0xFFFF, self._take((rest >> 16) - 8)

    def _take(self, count: int) -> bytes:
        while len(self._read) < count:
            more = self._socket.recv(4096)
            assert more, "the compositor is gone"
            self._read += more
        taken, self._read = self._read[:count], self._read[count:]
        return taken
