"""The package is removed."""

from pathlib import Path

from service import KEY, NAMES


def test_nothing_is_left_but_the_key_and_purging_says_where_that_is(
        start, stored_key, the_service, the_session, the_keyring, package, administrator):
    home = Path(the_session.surroundings["HOME"])
    program = start()
    program.screen.wait_for_rows(NAMES)
    assert program.terminate() == 0

    package.remove()
    assert administrator.files() - package.files_before() == set()
    assert package.files_before() - administrator.files() == set()
    said = package.purge()
    assert "secret-tool clear service KestruneAPIKeyService account KestruneAPIKey" in " ".join(said.split())
    assert administrator.files() == package.files_before()

    assert the_keyring.lookup().decode() == KEY
    of_its_own = [str(path) for path in home.rglob("*") if "larkspan" in path.name.lower() or "kestrune" in path.name.lower()]
    assert of_its_own == []
