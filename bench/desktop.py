"""usage: desktop.py first_frame|first_data|others|resident_after_cycle|scroll|opening|idle RESULT

Starts larkspan, the bare window and other programs alternately, in the same way and the same session, and writes the
medians to RESULT as JSON. It runs in the environment of the end-to-end tests, with their stand-ins around the programs.
"""

import json
import os
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from contextlib import contextmanager
from pathlib import Path

from measurement import ROOT, SCROLLED_ROWS, Unable, output_of

sys.path.insert(0, str(ROOT / "tests/e2e"))

import display
import keyring
import service
import session
from patience import eventually
from processes import running

BINARIES = Path(os.environ["LARKSPAN_E2E_BINARIES"])
PROGRAMS = {"larkspan": BINARIES / "larkspan", "bare": BINARIES / "larkspan-bench-bare"}
# What users know, of the same kind: a window, a panel item and work in the background.
OTHERS = ("keepassxc", "transmission-qt")
# What they ask once, before they show themselves.
ANSWERS = {"transmission/settings.json": '{"user-has-given-informed-consent": true}'}
FRAME_ROUNDS = 9
RESIDENT_ROUNDS = 3
SETTLING_SECONDS = 2
IDLE_SECONDS = 60
SCROLL_ROUNDS = 3
# The area in which the rows' names appear, and before them the busy indicator, which always moves: x, y, width, height.
ROWS = ("60", "200", "340", "120")
OVERVIEW_PATH = "/user/api/status-pages/status"


@contextmanager
def desktop(made_by=display.server):
    """An environment in which the program finds its key and its service; by default without a window manager, which
    takes extra time."""
    with (tempfile.TemporaryDirectory(prefix="larkspan-bench-") as home, service.simulator() as simulator,
          made_by() as screen, session.session(screen, Path(home)) as around, keyring.keyring(around) as keys):
        simulator.reset()
        keys.store(service.KEY.encode())
        for file, answer in ANSWERS.items():
            path = Path(home, ".config", file)
            path.parent.mkdir(parents=True)
            path.write_text(answer, encoding="utf-8")
        yield simulator, around.surroundings, screen


def first_frames():
    return starts({"larkspan": [], "bare": []}, lambda name, simulator: None)


def first_data():
    """The time until the rows of the first cycle are shown, compared with the bare window's first frame."""
    return starts({"larkspan": ["--rest", *ROWS], "bare": []},
                  lambda name, simulator: await_cycle(simulator) if name == "larkspan" else None)


def others():
    """Until each program's first window shows something, and what it holds once it is at rest."""
    programs = PROGRAMS | {name: path for name in OTHERS if (path := shutil.which(name))}
    for name in OTHERS:
        if name not in programs:
            print(f"bench: {name} is not installed, so nothing is measured beside it; ./dev setup others installs it")
    times = starts({name: [] for name in programs}, lambda name, simulator: None, programs)
    sizes = {name: [] for name in programs}
    with desktop() as (simulator, surroundings, screen):
        for _ in range(RESIDENT_ROUNDS):
            for name, path in programs.items():
                simulator.reset()
                ready = (lambda _: await_cycle(simulator)) if name == "larkspan" else (lambda process: screen.window(process.pid))
                sizes[name].append(size_of(name, surroundings, ready, path)["Pss"])
    return {name: {"time": times[name], "size": statistics.median(sizes[name])} for name in programs}


def starts(watched, make_sure, programs=PROGRAMS):
    times = {name: [] for name in programs}
    with desktop() as (simulator, surroundings, _):
        for _ in range(FRAME_ROUNDS + 1):
            for name, path in programs.items():
                simulator.reset()
                ended = output_of([BINARIES / "larkspan-bench-first-frame", *watched[name], path], env=surroundings)
                times[name].append(float(ended.stdout))
                make_sure(name, simulator)
    # The first round reads the programs from the disk.
    return {name: statistics.median(found[1:]) for name, found in times.items()}


def resident():
    sizes = {name: [] for name in PROGRAMS}
    with desktop() as (simulator, surroundings, _):
        for _ in range(RESIDENT_ROUNDS):
            simulator.reset()
            sizes["larkspan"].append(size_of("larkspan", surroundings, lambda _: await_cycle(simulator)))
            sizes["bare"].append(size_of("bare", surroundings, lambda _: None))
    return {name: {kind: statistics.median(size[kind] for size in found) for kind in ("Rss", "Pss")}
            for name, found in sizes.items()}


def await_cycle(simulator):
    """Waits until the overview is requested, the last request of a cycle."""
    eventually(lambda: any(request["target"] == OVERVIEW_PATH for request in simulator.requests()), "no cycle came", 30)


def size_of(name, surroundings, await_readiness, path=None):
    """The memory of the program, in MiB."""
    with running(path or PROGRAMS[name], env=surroundings, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as process:
        await_readiness(process)
        time.sleep(SETTLING_SECONDS)
        if process.poll() is not None:
            raise Unable(f"{name} ended by itself.")
        rollup = Path(f"/proc/{process.pid}/smaps_rollup").read_text()
        return {kind: int(re.search(rf"^{kind}: +(\d+) kB", rollup, re.M).group(1)) / 1024 for kind in ("Rss", "Pss")}


def scrolled():
    """The cost of a frame in milliseconds while a list of many rows scrolls, by the scale of the display."""
    found = {}
    with desktop(lambda: display.server("2400x1600")) as (_, surroundings, _):
        for scale in ("1", "2"):
            times = {kind: [] for kind in SCROLLED_ROWS}
            for _ in range(SCROLL_ROUNDS):
                for kind, taken in times.items():
                    command = [BINARIES / "larkspan-bench-scroll", kind, str(SCROLLED_ROWS[kind])]
                    ended = output_of(command, env=surroundings | {"QT_SCALE_FACTOR": scale})
                    taken.append([float(time) for time in ended.stdout.split()])
            found[scale] = {kind: [statistics.median(column) for column in zip(*taken)] for kind, taken in times.items()}
    return found


def opened():
    """The time from the choice of a page's many incidents to their first rows on screen, in milliseconds, without
    the service's own time."""
    with desktop() as (_, surroundings, _):
        return float(output_of([BINARIES / "larkspan-bench-scroll", "opening", str(SCROLLED_ROWS["incidents"])], env=surroundings).stdout)


def idle():
    """The cost of a minute with the window minimised: CPU time in milliseconds and context switches, of all threads."""
    with desktop(display.display) as (simulator, surroundings, screen):
        with running(PROGRAMS["larkspan"], env=surroundings, stderr=subprocess.DEVNULL) as process:
            await_cycle(simulator)
            window = screen.window(process.pid)
            screen.press_close_button(window)
            eventually(lambda: screen.state(window) == "Iconic", "the window was not minimised")
            time.sleep(SETTLING_SECONDS)
            cpu, switches = cpu_of(process.pid), switches_of(process.pid)
            time.sleep(IDLE_SECONDS)
            # A thread that has ended meanwhile has no count any more.
            switched = sum(count - switches.get(thread, 0) for thread, count in switches_of(process.pid).items())
            return {"larkspan": {"cpu": cpu_of(process.pid) - cpu, "switches": switched}}


def switches_of(process_id):
    """The context switches of each thread."""
    return {thread.name: sum(int(count) for count in re.findall(r"ctxt_switches:\s+(\d+)", (thread / "status").read_text()))
            for thread in Path(f"/proc/{process_id}/task").iterdir()}


def cpu_of(process_id):
    """The CPU time in milliseconds, including that of ended threads."""
    return time.clock_gettime(cpu_clock(process_id)) * 1e3


def cpu_clock(process_id):
    """The clock that clock_getcpuclockid(3) gives, which Python does not offer."""
    time_on_a_processor = 2
    return (~process_id << 3) | time_on_a_processor


MEASURES = {"first_frame": first_frames, "first_data": first_data, "others": others, "resident_after_cycle": resident, "scroll": scrolled, "opening": opened, "idle": idle}


def main(what, result):
    found = MEASURES[what]()
    Path(result).write_text(json.dumps(found))


if __name__ == "__main__":
    try:
        main(*sys.argv[1:])
    except (Unable, AssertionError) as reason:
        sys.exit(f"bench: {reason}")
