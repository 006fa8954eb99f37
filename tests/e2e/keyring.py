"""The desktop's keyring, as its user and other programs use it."""

import subprocess
from contextlib import contextmanager
from typing import Iterator

import dbus

from patience import eventually
from processes import end, running
from session import Session

SECRETS = "org.freedesktop.secrets"
COLLECTION = "/org/freedesktop/secrets/collection/login"
PASSWORD = "correct horse"
ITEM = ("service", "KestruneAPIKeyService", "account", "KestruneAPIKey")


class Keyring:
    def __init__(self, session: Session, daemon: subprocess.Popen) -> None:
        self._session = session
        self._daemon = daemon

    def store(self, key: bytes) -> None:
        subprocess.run(["secret-tool", "store", "--label", "Kestrune API key", *ITEM],
                       input=key, env=self._session.surroundings, check=True)

    def store_what_is_no_text(self, secret: bytes) -> None:
        """Stores a secret that is not a text, as another program may; `secret-tool` refuses to."""
        properties = {
            "org.freedesktop.Secret.Item.Label": "another program's",
            "org.freedesktop.Secret.Item.Attributes": dbus.Dictionary(dict(zip(ITEM[::2], ITEM[1::2])), signature="ss"),
        }
        self._call("org.freedesktop.Secret.Collection", "CreateItem", "a{sv}(oayays)b", (properties, self._secret(secret), True),
                   path=COLLECTION)

    def lookup(self) -> bytes:
        return subprocess.run(["secret-tool", "lookup", *ITEM],
                              capture_output=True, env=self._session.surroundings, check=False).stdout

    def remove(self) -> None:
        subprocess.run(["secret-tool", "clear", *ITEM], env=self._session.surroundings, check=False)

    def die(self) -> None:
        end(self._daemon)

    def lock(self) -> None:
        self._call("org.freedesktop.Secret.Service", "Lock", "ao", ([dbus.ObjectPath(COLLECTION)],))

    def unlock(self) -> None:
        """Unlocks the keyring without a prompt, as its own manager would."""
        self._call("org.gnome.keyring.InternalUnsupportedGuiltRiddenInterface", "UnlockWithMasterPassword", "o(oayays)",
                   (dbus.ObjectPath(COLLECTION), self._secret(PASSWORD.encode())))

    def _secret(self, content: bytes) -> dbus.Struct:
        _, session = self._call("org.freedesktop.Secret.Service", "OpenSession", "sv", ("plain", dbus.String("", variant_level=1)))
        return dbus.Struct((session, dbus.ByteArray(b""), dbus.ByteArray(content), "text/plain"), signature="oayays")

    def _call(self, interface: str, method: str, signature: str, arguments: tuple, path: str = "/org/freedesktop/secrets"):
        return self._session.bus.call_blocking(SECRETS, path, interface, method, signature, arguments)


@contextmanager
def keyring(session: Session) -> Iterator[Keyring]:
    """A new, unlocked keyring."""
    with running("gnome-keyring-daemon", "--foreground", "--components=secrets", "--unlock", env=session.surroundings,
                 stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as daemon:
        daemon.stdin.write(PASSWORD.encode())
        daemon.stdin.close()
        eventually(lambda: session.has(SECRETS), "no keyring came")
        yield Keyring(session, daemon)
