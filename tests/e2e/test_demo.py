"""The demo, an account that lives in the program."""

import os
from pathlib import Path

from processes import running
from program import surroundings

DEMO = Path(os.environ["LARKSPAN_E2E_BINARIES"], "larkspan-demo")


def test_its_window_has_the_programs_icon_though_nothing_is_installed(the_session, the_display):
    with running(str(DEMO), env=surroundings(the_session)) as demo:
        assert the_display.has_icon(the_display.window(demo.pid))
