"""The window is drawn in software, whatever graphics the machine has."""

import re
from pathlib import Path

from service import NAMES

# The drivers' own libraries; those that only look for a driver come with Qt.
DRIVER = re.compile(r"/dri/|libgallium|swrast|libLLVM|lib(GLX|EGL)_(mesa|nvidia)|libvulkan|libgbm")


def drivers(process_id: int) -> list[str]:
    return sorted({line.split()[-1] for line in Path(f"/proc/{process_id}/maps").read_text().splitlines() if DRIVER.search(line)})


def test_the_program_holds_no_graphics_driver_in_memory(start, stored_key, the_service):
    program = start()
    program.screen.wait_for_rows(NAMES)
    assert "QT_QUICK_BACKEND" not in program.surroundings
    assert drivers(program.process.pid) == []
