"""The cost of one refresh cycle by the size of the account.

The reference of each size is its cost at the price per page of 1,000 pages, so a ratio around 1 at 10,000 pages
means that the cost grows linearly with the account.
"""

import re
import shutil

from measurement import measurement, output_of, program

SIZES = (10, 1_000, 10_000)
# The longest allowed turn of the main thread in milliseconds: a frame of a 120 Hz display.
LONGEST_TURN = 8
# The same with the largest body that is accepted.
LONGEST_TURN_EVER = 100
INCIDENTS = 10_000
REPETITIONS = {10: 2_001, 1_000: 101, 10_000: 21}
BASE = 1_000


def measure(build):
    bench = program(build, "larkspan-bench-cycle")
    found = beside_base("cycle_{}", "ms", {size: milliseconds(bench, size) for size in SIZES})
    if shutil.which("valgrind"):
        counts = {size: instructions(bench, size) for size in SIZES}
        found += beside_base("cycle_{}_instructions", "instructions", counts)
    else:
        print("bench: without valgrind no instructions are counted")
    return found


def measure_turns(build):
    """How long a cycle with many incidents blocks the main thread, compared with the limit; for comparison also the
    work of the client's own thread."""
    bench = program(build, "larkspan-bench-turns")
    largest = float(output_of([program(build, "larkspan-bench-largest")]).stdout)
    longest, client = map(float, output_of([bench, str(INCIDENTS), "21"]).stdout.split())
    return [measurement("turn_10000_incidents", longest, "ms", LONGEST_TURN, 1),
            measurement("client_10000_incidents", client, "ms", longest),
            measurement("turn_largest_body", largest, "ms", LONGEST_TURN_EVER, 1)]


def beside_base(name, unit, values):
    price = values[BASE] / BASE
    return [measurement(name.format(size), value, unit, price * size) for size, value in values.items()]


def milliseconds(bench, size):
    return float(output_of([bench, str(size), str(REPETITIONS[size])]).stdout)


def instructions(bench, size):
    count = output_of(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", "--collect-atstart=no",
                       "--toggle-collect=*runMeasuredCycle*", bench, str(size), "1"])
    return int(re.search(r"Collected : (\d+)", count.stderr).group(1))
