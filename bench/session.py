"""A desktop session of the bench's own around a command.

usage: session.py BUILD COMMAND [ARGUMENT]...

The command finds a display in memory, a bus, a keyring with the API key, and, at the service's host, a simulator that
it trusts. All of it lies in name spaces of its own, so that the machine keeps its authorities, hosts and ports; no
rights are needed for that.
"""

import fcntl
import os
import pathlib
import re
import signal
import socket
import ssl
import struct
import subprocess
import sys
import tempfile
import time
import urllib.request

KEY = "bench-key"
BUNDLE = "/etc/ssl/certs/ca-certificates.crt"
OVERVIEW = "/user/api/status-pages/status"
PATIENCE_SECONDS = 30


INSIDE = "--inside"


def enter(arguments):
    """Starts this program again, in name spaces and with a bus of its own."""
    os.execvp("unshare", ["unshare", "--map-current-user", "--keep-caps", "--mount", "--net", "dbus-run-session", "--",
                          sys.executable, __file__, INSIDE, *arguments])


def run(build, command):
    raise_loopback()
    with tempfile.TemporaryDirectory(prefix="larkspan-bench-") as directory, Peers() as peers:
        home = pathlib.Path(directory)
        set_environment(home)
        peers.start_simulator(build, home)
        peers.start_display()
        peers.start_keyring()
        ended = subprocess.run(command)
    sys.exit(ended.returncode)


def raise_loopback():
    """A network of one's own begins with its loopback down."""
    set_interface_flags, interface_is_up = 0x8914, 0x1
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as any_socket:
        fcntl.ioctl(any_socket, set_interface_flags, struct.pack("16sh14x", b"lo", interface_is_up))


def set_environment(home):
    kept = {name: os.environ[name] for name in ("PATH", "DBUS_SESSION_BUS_ADDRESS")}
    runtime = home / "runtime"
    runtime.mkdir(mode=0o700)
    os.environ.clear()
    os.environ.update(kept, HOME=str(home), XDG_RUNTIME_DIR=str(runtime), LANG="C.UTF-8")


def service_host(build):
    cache = (pathlib.Path(build) / "CMakeCache.txt").read_text()
    host, _, port = re.search(r"^LARKSPAN_SERVICE_HOST:\w+=(.*)$", cache, re.M).group(1).partition(":")
    return host, port or "443"


def has_owner(name):
    asked = subprocess.run(["dbus-send", "--session", "--print-reply=literal", "--dest=org.freedesktop.DBus", "/",
                            "org.freedesktop.DBus.NameHasOwner", "string:" + name], capture_output=True, text=True)
    return "true" in asked.stdout


def wait_until(condition, complaint):
    until = time.monotonic() + PATIENCE_SECONDS
    while not condition():
        if time.monotonic() > until:
            sys.exit(complaint)
        time.sleep(0.05)


class Peers:
    """The programs around the one that is measured; they end with the session."""

    def __init__(self):
        self.processes = []

    def __enter__(self):
        return self

    def __exit__(self, *failure):
        for process in reversed(self.processes):
            process.send_signal(signal.SIGTERM)
            process.wait()

    def start(self, command, **options):
        process = subprocess.Popen(command, text=True, **options)
        self.processes.append(process)
        return process

    def start_simulator(self, build, home):
        host, port = service_host(build)
        simulator = self.start([pathlib.Path(build) / "bin/larkspan-simulator", "--directory", home / "authority",
                                "--host", host, "--port", port, "--key", KEY], stdout=subprocess.PIPE)
        os.environ["LARKSPAN_BENCH_SIMULATOR"] = simulator.stdout.readline().strip()
        hosts = home / "hosts"
        hosts.write_text(f"127.0.0.1 localhost {host}\n")
        subprocess.run(["mount", "--bind", hosts, "/etc/hosts"], check=True)
        subprocess.run(["mount", "--bind", home / "authority/authority.pem", BUNDLE], check=True)

    def start_display(self):
        reading, writing = os.pipe()
        self.start(["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x800x24", "-nolisten", "tcp"],
                   pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as display:
            os.environ["DISPLAY"] = ":" + display.readline().strip()

    def start_keyring(self):
        keyring = self.start(["gnome-keyring-daemon", "--foreground", "--unlock", "--components=secrets"],
                             stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        keyring.stdin.write("password")
        keyring.stdin.close()
        # Asked too early, the bus would start a second, locked keyring.
        wait_until(lambda: has_owner("org.freedesktop.secrets"), "the keyring did not start")
        attributes = ["service", "KestruneAPIKeyService", "account", "KestruneAPIKey"]
        store = ["secret-tool", "store", "--label=Larkspan", *attributes]
        subprocess.run(store, input=KEY, text=True, check=True)


class Session:
    """The session as the measuring command inside it sees it."""

    def __init__(self):
        self.simulator = os.environ["LARKSPAN_BENCH_SIMULATOR"]
        self.trust = ssl.create_default_context()

    def forget_requests(self):
        self.ask("DELETE", "/simulator/requests")

    def wait_for_cycle(self):
        """Waits until the service was asked for the overview, the last request of a cycle."""
        wait_until(lambda: OVERVIEW in self.ask("GET", "/simulator/requests"), "no refresh cycle came")

    def ask(self, method, path):
        request = urllib.request.Request(self.simulator + path, method=method)
        with urllib.request.urlopen(request, context=self.trust, timeout=PATIENCE_SECONDS) as answer:
            return answer.read().decode()


if __name__ == "__main__":
    if sys.argv[1] == INSIDE:
        run(sys.argv[2], sys.argv[3:])
    else:
        enter(sys.argv[1:])
