"""The costs of larkspan on the desktop, compared with a bare Qt Quick window: the shipped program, in the
environment of the end-to-end tests."""

import json
import re
import sys
import tempfile

from measurement import ROOT, SCROLLED_ROWS, Unable, measurement, program

sys.path.insert(0, str(ROOT / "tests/e2e"))

import world

GOAL = 1.5
FRAME_GOAL = 1.9
DATA_GOAL = 2.5
SCROLL_GOAL = 2
# The longest allowed time until the first rows of a page with many incidents are on screen, in milliseconds.
OPENING = 100
# The allowed cost of a minute with the window minimised, including polls.
IDLE_CPU = 5
IDLE_SWITCHES = 60


def measure_first_frame(build):
    found = on_the_desktop(build, "first_frame")
    return [measurement("first_frame", found["larkspan"], "ms", found["bare"], FRAME_GOAL)]


def measure_first_data(build):
    found = on_the_desktop(build, "first_data")
    return [measurement("first_data", found["larkspan"], "ms", found["bare"], DATA_GOAL)]


def measure_others(build):
    """Beside programs of the same kind that users know."""
    found = on_the_desktop(build, "others")
    larkspan = found.pop("larkspan")
    bare = found.pop("bare")
    measurements = [measurement("first_window", larkspan["time"], "ms", bare["time"], FRAME_GOAL)]
    for name, other in found.items():
        word = name.replace("-", "_")
        measurements += [measurement(f"first_window_beside_{word}", larkspan["time"], "ms", other["time"], 1),
                         measurement(f"proportional_beside_{word}", larkspan["size"], "MiB", other["size"], 1)]
    return measurements


def measure_resident(build):
    found = on_the_desktop(build, "resident_after_cycle")
    return [measurement("resident_after_cycle", found["larkspan"]["Rss"], "MiB", found["bare"]["Rss"], GOAL),
            measurement("proportional_after_cycle", found["larkspan"]["Pss"], "MiB", found["bare"]["Pss"])]


def measure_scroll(build):
    found = on_the_desktop(build, "scroll", "larkspan-bench-scroll")
    measurements = []
    for scale, times in found.items():
        bare_middle, bare_slow = times.pop("bare")
        for kind, (middle, slow) in times.items():
            name = f"scroll_{SCROLLED_ROWS[kind]}_{kind}_{scale}x"
            measurements += [measurement(name, middle, "ms", bare_middle, SCROLL_GOAL),
                             measurement(f"{name}_95th", slow, "ms", bare_slow, SCROLL_GOAL)]
    return measurements


def measure_opening(build):
    return [measurement("open_10000_incidents", on_the_desktop(build, "opening", "larkspan-bench-scroll"), "ms", OPENING, 1)]


def measure_idle(build):
    found = on_the_desktop(build, "idle")
    return [measurement("idle_cpu", found["larkspan"]["cpu"], "ms", IDLE_CPU, 1),
            measurement("idle_switches", found["larkspan"]["switches"], "switches", IDLE_SWITCHES, 1)]


def on_the_desktop(build, what, *programs):
    for name in ("larkspan", "larkspan-bench-bare", "larkspan-bench-first-frame", "larkspan-simulator", *programs):
        program(build, name)
    measuring = str(ROOT / "bench/desktop.py")
    with tempfile.NamedTemporaryFile("r", suffix=".json") as result:
        code = world.run(str(build / "bin"), service_host(build), [sys.executable, measuring, what, result.name])
        if code != 0:
            raise Unable(f"{what} was not measured.")
        return json.load(result)


def service_host(build):
    cache = (build / "CMakeCache.txt").read_text()
    return re.search(r"^LARKSPAN_SERVICE_HOST:\w+=(.*)$", cache, re.M).group(1)
