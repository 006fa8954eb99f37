"""What OpenSSL's configuration names is not loaded into the program."""

import os
import subprocess
import sys

import pytest

import program

MODULE = program.BINARY.resolve().with_name("liblarkspan_marking_module.so")


@pytest.fixture
def surroundings(tmp_path) -> dict[str, str]:
    """A configuration that names a provider, which leaves a mark wherever it is loaded."""
    if not MODULE.exists():
        pytest.skip("the module is built with the tests")
    configuration = tmp_path / "openssl.cnf"
    configuration.write_text(
        "openssl_conf = all\n[all]\nproviders = named\n[named]\ndefault = usual\nmarking = marking\n"
        f"[usual]\nactivate = 1\n[marking]\nmodule = {MODULE}\nactivate = 1\n", encoding="ascii")
    kept = {name: os.environ[name] for name in ("PATH", "HOME") if name in os.environ}
    return kept | {"LANG": "C.UTF-8", "OPENSSL_CONF": str(configuration), "LARKSPAN_MARK": str(tmp_path / "mark")}


def test_another_program_loads_the_module(surroundings, tmp_path):
    subprocess.run([sys.executable, "-c", "import ssl; ssl.create_default_context()"], env=surroundings, timeout=20,
                   capture_output=True, check=False)
    assert (tmp_path / "mark").exists()


def test_a_command_on_a_terminal_does_not(surroundings, tmp_path):
    answered = subprocess.run([program.BINARY, "--status"], env=surroundings, timeout=30, capture_output=True,
                              text=True, check=False)
    assert "API key is missing." in answered.stderr
    assert not (tmp_path / "mark").exists()


def test_a_window_with_pages_does_not(surroundings, tmp_path, the_session, the_display, stored_key, the_service):
    from service import NAMES
    the_session.surroundings.update({name: surroundings[name] for name in ("OPENSSL_CONF", "LARKSPAN_MARK")})
    with program.program(the_session, the_display) as started:
        started.screen.wait_for_rows(NAMES)
        assert not (tmp_path / "mark").exists()
