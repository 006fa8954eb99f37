"""Tests each rule with text that breaks it and text that keeps it."""

from packaging_rules import HOMES, VERSIONS, differences, differences_of_packages

DEPENDENCIES = """# group package purpose
build   cmake                 the build's description
run     libqt6svg6            drawings
run     qml6-module-qtquick   items
run     qt6-wayland           windows
test    xvfb                  a display
"""

CONTROL = """Source: larkspan
Build-Depends:
 cmake (>= 3.25),
 debhelper-compat (= 13),

Package: larkspan
Depends:
 qml6-module-qtquick,
 ${shlibs:Depends},
Recommends: gnome-keyring | keepassxc, qt6-wayland
"""


def test_the_same_packages_in_both_files_are_no_difference():
    assert differences_of_packages(CONTROL, DEPENDENCIES) == []


def test_a_package_that_is_only_in_one_of_the_files_is_told():
    for broken, word in [
        ((CONTROL, DEPENDENCIES + "build g++ the compiler\n"), "Build-Depends lacks g++"),
        ((CONTROL.replace(" cmake", " ninja-build,\n cmake"), DEPENDENCIES), "ninja-build is not in the group build"),
        ((CONTROL, DEPENDENCIES + "run ca-certificates authorities\n"), "lack ca-certificates"),
        ((CONTROL.replace(" qml6", " dconf-cli,\n qml6"), DEPENDENCIES), "dconf-cli is not in the group run"),
    ]:
        (sentence,) = differences_of_packages(*broken)
        assert word in sentence


def texts_with(version_of_the_manual):
    changelog, manual = "packaging/debian/changelog", "packaging/larkspan.1"
    assert {changelog, manual} < set(VERSIONS)
    return {changelog: "larkspan (1.2) unstable; urgency=medium\n",
            manual: f'.TH LARKSPAN 1 2026-01-01 "Larkspan {version_of_the_manual}" "User commands"\n'}


def test_equal_versions_are_no_difference():
    assert differences("versions", VERSIONS, texts_with("1.2")) == []


def test_versions_that_differ_are_told_with_their_files():
    (sentence,) = differences("versions", VERSIONS, texts_with("1.1"))
    assert "1.2 in packaging/debian/changelog" in sentence and "1.1 in packaging/larkspan.1" in sentence


def test_a_file_without_a_version_is_told():
    (sentence,) = differences("versions", VERSIONS, texts_with('" "'))
    assert "none in packaging/larkspan.1" in sentence


def test_another_home_than_that_of_the_build_is_told():
    build, control = HOMES
    texts = {build: 'set(LARKSPAN_WEBSITE "https://one.example" CACHE STRING "")\n', control: "Homepage: https://two.example\n"}
    (sentence,) = differences("homes", HOMES, texts)
    assert "https://one.example in CMakeLists.txt" in sentence and f"https://two.example in {control}" in sentence
    assert differences("homes", HOMES, texts | {control: "Homepage: https://one.example\n"}) == []
