"""Compiles sources with their mutants as the build compiles them, but without optimisation, and links them into the
program of the unit tests in place of the whole ones."""

import json
import os
import re
import shlex
import shutil
import subprocess
from pathlib import Path

import schemata
from places import Place

ROOT = Path(__file__).resolve().parent.parent.parent
FOLDER = ROOT / "build/mutate"
PROGRAM = FOLDER / "larkspan_unit_tests"
ENVIRONMENT = {**os.environ, "CCACHE_SLOPPINESS": "pch_defines,time_macros,include_file_mtime,include_file_ctime"}


class Build:
    def __init__(self, build: Path):
        self.build = build
        self.compiler = [*filter(None, [shutil.which("ccache")]), "g++"]
        self.flags = [*self.definitions(), "-std=c++20", "-O0", "-w", "-include", str(FOLDER / "choice.h")]
        self.objects: list[Path] = []
        FOLDER.mkdir(parents=True, exist_ok=True)
        (FOLDER / "choice.h").write_text(schemata.CHOICE, encoding="utf-8")
        (FOLDER / "chooser.cpp").write_text(schemata.CHOOSER, encoding="utf-8")
        self.precompiled = self.precompile()

    def definitions(self) -> list[str]:
        entries = json.loads((self.build / "compile_commands.json").read_text(encoding="utf-8"))
        words = next(shlex.split(entry["command"]) for entry in entries if entry["file"].startswith(str(ROOT / "src")))
        return [word for word in words if word.startswith(("-D", "-I")) and not word.startswith("-D_FORTIFY_SOURCE")]

    def precompile(self) -> list[str]:
        """The build's own header does not fit, since it was compiled with optimisation."""
        original = next(self.build.glob("src/CMakeFiles/larkspan_core.dir/cmake_pch.hxx"))
        header = FOLDER / "precompiled.h"
        header.write_text('#include "choice.h"\n' + original.read_text(encoding="utf-8"), encoding="utf-8")
        self.run([*self.compiler, *self.flags[:-2], "-x", "c++-header", str(header), "-o", f"{header}.gch"])
        return ["-include", str(header)]

    def compile(self, path: str, places: dict[int, Place]) -> dict[int, Place]:
        """Returns those that compile; their source is part of the program from then on."""
        text = (ROOT / path).read_text(encoding="utf-8")
        source = FOLDER / "sources" / path
        source.parent.mkdir(parents=True, exist_ok=True)
        target = source.with_suffix(".o")
        while places:
            source.write_text(schemata.written(path, text, places), encoding="utf-8")
            complaints = self.run([*self.compiler, *self.flags[:-2], *self.precompiled, "-c", str(source), "-o", str(target)], False)
            if complaints is None:
                self.objects.append(target)
                return places
            guilty = {int(number) for number in re.findall(r"mutant-(\d+):", complaints)}
            if not guilty & places.keys():
                raise SystemExit(f"mutate: {path} cannot be compiled with its mutants:\n{complaints[:4000]}")
            places = {number: place for number, place in places.items() if number not in guilty}
        return {}

    def link(self) -> None:
        chooser = FOLDER / "chooser.o"
        self.run(["g++", "-c", str(FOLDER / "chooser.cpp"), "-o", str(chooser)])
        commands = self.run(["ninja", "-C", str(self.build), "-t", "commands", "larkspan_unit_tests"], None).splitlines()
        words = shlex.split(next(line for line in commands if " -o bin/larkspan_unit_tests " in line))
        begin = words.index("&&") + 1
        words = words[begin:words.index("&&", begin)]
        at = words.index("-o")
        words[at:at + 2] = [*map(str, self.objects), str(chooser), "-fuse-ld=mold", "-o", str(PROGRAM)]
        self.run(words)

    def run(self, command: list[str], must_succeed: bool | None = True) -> str | None:
        """What it says: its output if that is what is wanted (None), else its complaints, if it has failed."""
        done = subprocess.run(command, cwd=self.build, env=ENVIRONMENT, capture_output=True, text=True, check=False)
        if must_succeed is None:
            return done.stdout
        if done.returncode and must_succeed:
            raise SystemExit(f"mutate: {shlex.join(command)}\n{done.stderr[:4000]}")
        return done.stderr if done.returncode else None
