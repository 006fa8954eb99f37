"""The package in the bare root."""

import json
import os
from pathlib import Path

from administrator import Administrator

ROOT = Path(os.environ["LARKSPAN_ROOT"])
WORK = Path(os.environ["LARKSPAN_WORK"])
NAME = "larkspan"
PROGRAM = "/usr/bin/larkspan"


class Package:
    def __init__(self, administrator: Administrator) -> None:
        self._administrator = administrator
        self._before = WORK / "files-before.json"

    def install_what_it_depends_on(self) -> None:
        self._administrator.run("apt-get", "update", "--quiet")
        depends = self._administrator.run("dpkg-deb", "--field", str(WORK / "larkspan.deb"), "Depends").strip()
        self._administrator.run("apt-get", "satisfy", "--yes", "--quiet", "--no-install-recommends", depends)
        self._before.write_text(json.dumps(sorted(self._administrator.files())), encoding="utf-8")

    def install(self) -> None:
        self._administrator.install(str(WORK / "larkspan.deb"))

    def upgrade(self) -> None:
        self._administrator.install(str(next((WORK / "updates").glob("larkspan_*.deb"))))

    def remove(self) -> str:
        return self._administrator.run("apt-get", "remove", "--yes", NAME)

    def purge(self) -> str:
        return self._administrator.run("apt-get", "purge", "--yes", NAME)

    def version(self) -> str:
        return self._administrator.run("dpkg-query", "--show", "--showformat", "${Version}", NAME)

    def files_before(self) -> set[str]:
        """The files when everything that it depends on was installed, and it was not."""
        return set(json.loads(self._before.read_text(encoding="utf-8")))

    def dependencies(self) -> dict[str, set[str]]:
        """The files of each installed package that it names; a name may also be one that such a package provides."""
        installed = self._administrator.run("dpkg-query", "--show", "--showformat", "${Package} ").split()
        depends = self._administrator.run("dpkg-query", "--show", "--showformat", "${Depends}", NAME)
        names = {word.split()[0].partition(":")[0] for part in depends.split(",") for word in part.split("|")}
        return {name: set(self._administrator.run("dpkg-query", "--listfiles", name).splitlines())
                for name in names.intersection(installed)}
