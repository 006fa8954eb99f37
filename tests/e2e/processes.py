"""Programs that end with the test that started them."""

import subprocess
from contextlib import contextmanager
from typing import Iterator


@contextmanager
def running(*command: str, **options) -> Iterator[subprocess.Popen]:
    process = subprocess.Popen(command, **options)
    try:
        yield process
    finally:
        end(process)


def end(process: subprocess.Popen) -> None:
    if process.poll() is None:
        process.terminate()
        try:
            process.wait(5)
        except subprocess.TimeoutExpired:
            process.kill()
    process.wait()
    for stream in (process.stdin, process.stdout, process.stderr):
        if stream:
            stream.close()
