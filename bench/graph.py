"""The cost of a latency graph of 1,440 samples, at its normal size and at a large one, compared with the limit:
painting it once for its samples, and moving its selection."""

import os

from measurement import measurement, output_of, program

SIZES = {"": ("720", "72"), "_large": ("600", "160")}
TIMES = "201"
# In milliseconds, by the display's scale.
PAINTING = {"1": 4, "2": 8}
SELECTING = 1


def measure(build):
    bench = program(build, "larkspan-bench-graph")
    found = []
    for scale, most in PAINTING.items():
        # As for the gallery's pictures, the result does not depend on the display.
        surroundings = os.environ | {"QT_QPA_PLATFORM": "offscreen", "QT_SCALE_FACTOR": scale}
        for name, size in SIZES.items():
            painting, selecting = map(float, output_of([bench, *size, TIMES], env=surroundings).stdout.split())
            found.append(measurement(f"graph{name}_paint_{scale}x", painting, "ms", most, 1))
            found.append(measurement(f"graph{name}_select_{scale}x", selecting, "ms", SELECTING, 1))
    return found
