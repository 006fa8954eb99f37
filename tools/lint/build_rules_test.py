"""Tests the rule with texts of CMake that break it and that keep it."""

from build_rules import is_built


def test_a_source_is_named_in_its_folder_or_above():
    assert is_built("src/core/Poll.cpp", {"src/core": "target_sources(core PRIVATE Poll.cpp)"})
    assert is_built("simulator/demo/main.cpp", {".": "add_executable(demo simulator/demo/main.cpp)"})


def test_a_folder_may_take_all_its_sources():
    assert is_built("tests/api/PollTest.cpp", {"tests/api": "file(GLOB tests CONFIGURE_DEPENDS *.cpp)"})
    assert is_built("src/model/json/URL.cpp", {"src/model": "file(GLOB sources\n json/*.cpp\n bodies/*.cpp)"})


def test_a_source_that_nobody_names_is_forgotten():
    assert not is_built("tests/core/PollTest.cpp", {"tests/core": "target_sources(tests PRIVATE SlowPollTest.cpp)", "tests": ""})
    assert not is_built("tests/core/PollTest.cpp", {"tests": "file(GLOB tests CONFIGURE_DEPENDS *.cpp)"})
