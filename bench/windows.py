"""What larkspan costs on the desktop, beside a bare Qt Quick window: both started in turn, by the same hand, in the
same session.

The session is private: a name space in which the program as it is shipped finds the service's host to be this
computer, with a simulator there that it trusts, a display in memory, a bus and a keyring that holds the key.
"""

import json
import pathlib
import re
import statistics
import subprocess
import sys
import tempfile
import time

from measurement import Unable, measurement, output_of, program
from session import Session

GOAL = 1.25
FRAME_ROUNDS = 9
RESIDENT_ROUNDS = 3
SETTLING_SECONDS = 2
PATIENCE_SECONDS = 30


def measure_first_frame(build):
    found = in_session(build, "first_frame")
    return [measurement("first_frame", found["larkspan"], "ms", found["bare"], GOAL)]


def measure_resident(build):
    found = in_session(build, "resident_after_cycle")
    return [measurement("resident_after_cycle", found["larkspan"]["Rss"], "MiB", found["bare"]["Rss"], GOAL),
            measurement("proportional_after_cycle", found["larkspan"]["Pss"], "MiB", found["bare"]["Pss"])]


def in_session(build, what):
    for name in ("larkspan", "larkspan-bench-bare", "larkspan-bench-first-frame", "larkspan-simulator"):
        program(build, name)
    session = pathlib.Path(__file__).with_name("session.py")
    with tempfile.NamedTemporaryFile("r", suffix=".json") as result:
        output_of([sys.executable, session, build, sys.executable, __file__, build, what, result.name])
        return json.load(result)


def first_frames(build):
    watcher = program(build, "larkspan-bench-first-frame")
    times = {"larkspan": [], "larkspan-bench-bare": []}
    for _ in range(FRAME_ROUNDS + 1):
        for name, found in times.items():
            found.append(float(output_of([watcher, program(build, name)]).stdout))
    # The first round reads the programs from the disk.
    return {name.removeprefix("larkspan-bench-"): statistics.median(found[1:]) for name, found in times.items()}


def resident(build, session):
    sizes = {"larkspan": [], "bare": []}
    for _ in range(RESIDENT_ROUNDS):
        session.forget_requests()
        sizes["larkspan"].append(size_of(program(build, "larkspan"), session.wait_for_cycle))
        sizes["bare"].append(size_of(program(build, "larkspan-bench-bare"), lambda: None))
    return {name: {kind: statistics.median(size[kind] for size in found) for kind in ("Rss", "Pss")}
            for name, found in sizes.items()}


def size_of(path, wait_until_ready):
    process = subprocess.Popen([path], stderr=subprocess.DEVNULL)
    try:
        wait_until_ready()
        time.sleep(SETTLING_SECONDS)
        if process.poll() is not None:
            raise Unable(f"{path} ended by itself.")
        rollup = pathlib.Path(f"/proc/{process.pid}/smaps_rollup").read_text()
        return {kind: int(re.search(rf"^{kind}: +(\d+) kB", rollup, re.M).group(1)) / 1024 for kind in ("Rss", "Pss")}
    finally:
        process.terminate()
        process.wait(PATIENCE_SECONDS)


def main(build, what, result):
    found = first_frames(build) if what == "first_frame" else resident(build, Session())
    pathlib.Path(result).write_text(json.dumps(found))


if __name__ == "__main__":
    try:
        main(pathlib.Path(sys.argv[1]), *sys.argv[2:])
    except Unable as reason:
        sys.exit(str(reason))
