"""The cost of reading a message's markdown, and of its rows with their escaped and styled texts, compared with md4c
alone on the same text: for an ordinary message, and for a megabyte of them."""

from measurement import measurement, output_of, program

# A message is a kilobyte long.
SIZES = {"message": (1, 2_001), "megabyte": (1_000, 21)}
GOAL_OF_READING = 2


def measure(build):
    bench = program(build, "larkspan-bench-markdown")
    found = []
    for name, (messages, times) in SIZES.items():
        read, rows, bare = map(float, output_of([bench, str(messages), str(times)]).stdout.split())
        found.append(measurement(f"markdown_{name}_read", read, "µs", bare, GOAL_OF_READING))
        found.append(measurement(f"markdown_{name}_rows", rows, "µs", bare))
    return found
