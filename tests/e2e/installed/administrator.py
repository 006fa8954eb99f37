"""usage: administrator.py ROOT SOCKET

The one who installs packages in the bare root: runs commands there as root, with the machine's own network. Each
connection to the socket is one command as a line of JSON, and is answered with its exit code and its words.
"""

import json
import os
import socket
import subprocess
import sys


class Administrator:
    def __init__(self, path: str) -> None:
        self._path = path

    def run(self, *command: str) -> str:
        """Runs a command in the root and returns what it said; it has to succeed."""
        with socket.socket(socket.AF_UNIX) as connection:
            connection.connect(self._path)
            connection.sendall(json.dumps(command).encode() + b"\n")
            with connection.makefile() as answer:
                code, said = json.load(answer)
        assert code == 0, f"{command} ended with {code}: {said}"
        return said

    def install(self, *packages: str) -> None:
        self.run("apt-get", "install", "--yes", "--quiet", "--no-install-recommends", *packages)

    def files(self) -> set[str]:
        """All files and folders of the root but those that are no part of a package."""
        ways = ("/dev", "/proc", "/sys", "/run", "/tmp", "/var/cache", "/var/lib/apt", "/var/lib/dpkg", "/var/log")
        left_out = [word for way in ways for word in ("-path", way, "-prune", "-o")]
        return set(self.run("find", "/", *left_out, "-print").splitlines())

    def program_of(self, process_id: int) -> str:
        """Its file as seen in the root, with "(deleted)" behind it if that is no longer there."""
        return self.run("readlink", f"/proc/{process_id}/exe").strip().removeprefix(os.environ["LARKSPAN_ROOT"])

    def code_of(self, process_id: int) -> set[str]:
        """The files whose code the process has in memory, as seen in the root."""
        areas = [line.split(maxsplit=5) for line in self.run("cat", f"/proc/{process_id}/maps").splitlines()]
        return {area[5].removeprefix(os.environ["LARKSPAN_ROOT"]) for area in areas if "x" in area[1] and len(area) == 6}


def serve(root: str, path: str) -> None:
    surroundings = {"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "LC_ALL": "C.UTF-8", "HOME": "/root", "DEBIAN_FRONTEND": "noninteractive"}
    with socket.socket(socket.AF_UNIX) as door:
        # It has its name only when it can be knocked at.
        door.bind(f"{path}.begun")
        os.chmod(f"{path}.begun", 0o666)
        door.listen()
        os.rename(f"{path}.begun", path)
        while True:
            connection, _ = door.accept()
            with connection, connection.makefile("rw") as line:
                done = subprocess.run(["chroot", root, *json.loads(line.readline())], env=surroundings, text=True, check=False,
                                      stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
                json.dump([done.returncode, done.stdout], line)


if __name__ == "__main__":
    serve(sys.argv[1], sys.argv[2])
