"""The cost of decoding many incidents, compared with merely parsing the same body, and with Qt's JSON reader, which
does not make records."""

from measurement import measurement, output_of, program

INCIDENTS = 10_000
ROUNDS = 21
GOAL_BESIDE_PARSE = 4
# As a fraction of Qt's time: ten times faster.
GOAL_BESIDE_QT = 0.1


def measure(build):
    decoded, parsed, by_qt = map(float, output_of([program(build, "larkspan-bench-decode"), str(INCIDENTS), str(ROUNDS)]).stdout.split())
    return [measurement("decode_10000_incidents", decoded, "ms", parsed, GOAL_BESIDE_PARSE),
            measurement("decode_10000_incidents_beside_qt", decoded, "ms", by_qt, GOAL_BESIDE_QT)]
