"""Tests which places of a source are found, and how both of its forms are written."""

import sys
from pathlib import Path

import pytest

sys.path.insert(0, str(Path(__file__).resolve().parent))
import equivalents
import schemata
from places import places_of


def changes(kind: str, line: str) -> list[str]:
    found = places_of("src/a.cpp", f"int f()\n{{\n    {line}\n}}\n")
    return [place.after for place in found if place.kind == kind]


def test_a_comparison_is_moved_by_one_or_reversed():
    assert changes("comparison", "call(a < b, c == d);") == ["call(a <= b, c == d);", "call(a < b, c != d);"]


def test_brackets_of_templates_are_no_comparisons():
    assert changes("comparison", "std::vector<int> a = b->c;") == []


def test_a_condition_is_negated():
    assert changes("condition", "if (a) return;") == ["if ( !(a)) return;"]
    assert changes("condition", "if (const auto* found = find(a)) return;") == [
        "if (const auto* found = find(a); !found) return;"]
    assert changes("condition", "if (f(); a(b)) return;") == ["if (f(); !( a(b))) return;"]


def test_a_condition_keeps_its_texts():
    assert changes("condition", 'if (a == "b") return;') == ['if ( !(a == "b")) return;']


def test_a_statement_is_dropped():
    assert changes("statement", "if (a) b.c(d);") == ["if (a) ;"]
    assert changes("statement", "a->b_ = c;") == [";"]
    assert changes("statement", "++count_;") == [";"]


def test_a_declaration_is_no_statement():
    assert changes("statement", "const auto a = b(c);") == []
    assert changes("statement", "return b(c);") == []


def test_what_only_saves_time_is_not_broken():
    assert changes("statement", "a.reserve(b);") == []


def test_numbers_texts_and_truths_are_others():
    assert changes("number", "a(1, 0x0F, 2'000, 10s, b2);") == [
        "a(2, 0x0F, 2'000, 10s, b2);", "a(1, 0x10, 2'000, 10s, b2);", "a(1, 0x0F, 2001, 10s, b2);",
        "a(1, 0x0F, 2'000, 11s, b2);"]
    assert changes("string", "a(\"b\", 'c');") == ["a(\"~b\", 'c');", "a(\"b\", 'd');"]
    assert changes("truth", "a = true;") == ["a = false;"]


def test_comments_are_not_broken():
    assert places_of("src/a.cpp", 'int f()\n{\n    // if (a == 1) b("c");\n}\n') == []


def test_only_functions_and_constants_are_broken():
    text = "static_assert(a == 1);\nenum class A { b = 1 };\nconstexpr int c = 1;\nint d() { return 1; }\n"
    assert {place.line for place in places_of("src/a.cpp", text)} <= {3, 4}
    assert [place.line for place in places_of("src/a.cpp", text) if place.kind == "number"] == [3]


def test_a_program_holds_both_forms_of_a_function():
    text = "int f()\n{\n    return 1;\n}\n"
    place = next(place for place in places_of("src/a.cpp", text) if place.kind == "number")
    assert schemata.written("src/a.cpp", text, {7: place}).split("\n") == [
        '#line 1 "src/a.cpp"', "int f()", "{", "", "if (larkspanMutant() == 7) {", '#line 3 "mutant-7"', "    return 2;", "",
        "} else {", '#line 3 "src/a.cpp"', "    return 1;", "", "}", "}", ""]


def test_a_constant_is_chosen_when_the_program_runs():
    text = "constexpr int most = 3;\n"
    place = next(place for place in places_of("src/a.cpp", text) if place.kind == "number")
    written = schemata.written("src/a.cpp", text, {7: place})
    assert "const int most = larkspanChosenMutant() == 7 ?" in written
    assert "int(4) : " in written and "int(3);" in written


def test_an_equivalent_is_known_by_its_text():
    assert equivalents.read("# why\n\nsrc/a.cpp\n- a < b\n+ a <= b\n= the same\n") == {("src/a.cpp", "a < b", "a <= b")}


def test_an_equivalent_needs_a_reason():
    with pytest.raises(SystemExit):
        equivalents.read("src/a.cpp\n- a < b\n+ a <= b\n")
