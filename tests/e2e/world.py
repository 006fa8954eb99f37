"""usage: world.py BINARIES HOST COMMAND...

Runs a command in its own namespaces, which end with it: without a network but loopback, where the service's HOST
is this machine, and with its own /etc, whose bundle of authorities it may write. So the program that users get
uses verified HTTPS to a stand-in, and the machine's settings are never touched. Started by root, the command runs as
an ordinary user, as all desktops do and some insist on.
"""

import fcntl
import os
import shutil
import socket
import struct
import subprocess
import sys
import tempfile
from pathlib import Path

CANNOT_BE_HERE = 77

AS_THE_USER = "--inside-as-the-user"
AS_IT_IS = "--inside-as-it-is"

# What the service's stand-in and the tests need: its port, and the files of whoever has built the program.
CAPABILITIES = "+net_bind_service,+dac_override"
FOREIGN = ("QT_", "QML", "DISPLAY", "WAYLAND_", "SWAY", "WLR_", "XDG_", "GTK_", "DBUS_SESSION")
ORDINARY_USER = ["setpriv", "--reuid=nobody", "--regid=nogroup", "--clear-groups",
                 f"--inh-caps={CAPABILITIES}", f"--ambient-caps={CAPABILITIES}"]


def namespaces() -> list[str] | None:
    """The command that gives a process its own mounts and network; None if the machine forbids that."""
    own = ["unshare", "--mount", "--net"]
    # The user id is kept, since the bus checks it. Root does not need that, but in a plain chroot the mounts cannot be
    # separated from those outside.
    ways = [[*own, "--propagation", "unchanged"]] if os.geteuid() == 0 else []
    ways = [own, *ways] if os.geteuid() == 0 else [["unshare", "--map-current-user", "--keep-caps", *own[1:]]]
    for way in ways:
        if subprocess.run([*way, "true"], capture_output=True, check=False).returncode == 0:
            return way
    return None


def run(binaries: str, host: str, command: list[str], mode: str = AS_THE_USER) -> int:
    """Runs the command and returns its exit code. With `AS_IT_IS` a command that root starts gives up root's rights itself."""
    if not shutil.which("unshare"):
        sys.exit("unshare is missing; it is in the package util-linux.")
    way = namespaces()
    if way is None:
        print("This machine lets its users have no namespaces (unshare), so the program cannot be run in a world of its own.")
        return CANNOT_BE_HERE
    with tempfile.TemporaryDirectory(prefix="larkspan-e2e-") as world:
        etc = Path(world, "etc")
        # Programs of the user do not need files that the user may not read.
        subprocess.run(["cp", "--archive", "/etc/.", etc], stderr=subprocess.DEVNULL, check=False)
        name = host.partition(":")[0]
        (etc / "hosts").unlink(missing_ok=True)
        (etc / "hosts").write_text(f"127.0.0.1 localhost {name}\n", encoding="utf-8")
        # A symbolic link would lead out of this copy.
        bundle = etc / "ssl/certs/ca-certificates.crt"
        authorities = bundle.read_bytes()
        bundle.unlink()
        bundle.write_bytes(authorities)
        surroundings = os.environ | {
            "LARKSPAN_E2E_BINARIES": binaries,
            "LARKSPAN_E2E_HOST": host,
            "LARKSPAN_E2E_WORLD": world,
            # The program's folders of another user hold no traces of the tests.
            "PYTHONDONTWRITEBYTECODE": "1",
            # The machine's own services and settings must have no influence here.
            "DBUS_SYSTEM_BUS_ADDRESS": f"unix:path={world}/no-system-bus",
        }
        for name in list(surroundings):
            if name.lower().endswith("_proxy") or name.startswith(FOREIGN):
                del surroundings[name]
        return subprocess.run([*way, sys.executable, __file__, mode, *command], env=surroundings, check=False).returncode


def inside(mode: str, command: list[str]) -> int:
    world = os.environ["LARKSPAN_E2E_WORLD"]
    subprocess.run(["mount", "--bind", f"{world}/etc", "/etc"], check=True)
    try:
        bring_loopback_up()
        as_user = ORDINARY_USER if os.geteuid() == 0 and mode == AS_THE_USER else []
        return subprocess.run([*as_user, *command], check=False).returncode
    finally:
        subprocess.run(["umount", "--lazy", "/etc"], check=False)


def bring_loopback_up() -> None:
    set_flags, up_and_running = 0x8914, 0x1 | 0x40
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as any_socket:
        fcntl.ioctl(any_socket, set_flags, struct.pack("16sh", b"lo", up_and_running))


if __name__ == "__main__":
    if sys.argv[1] in (AS_THE_USER, AS_IT_IS):
        sys.exit(inside(sys.argv[1], sys.argv[2:]))
    sys.exit(run(sys.argv[1], sys.argv[2], sys.argv[3:]))
