"""Tests each rule with text that breaks it and text that keeps it."""

import pytest

from source_rules import breaches

BROKEN = [
    ("src/core/A.cpp", "#include <QString>\n", "src/ includes"),
    ("src/core/A.cpp", "#include <asio/ip/tcp.hpp>\n", "src/ includes"),
    ("src/core/A.cpp", '#include "adapters/Curl.h"\n', "lowest storey"),
    ("desktop/adapters/A.cpp", '#include "bridge/Dashboard.h"\n', "composition root"),
    ("desktop/bridge/A.cpp", '#include "adapters/Curl.h"\n', "composition root"),
    ("simulator/service/A.cpp", "#include <QObject>\n", "without a desktop"),
    ("tests/unit/core/ATest.cpp", "std::this_thread::sleep_for(1s);\n", "never sleep"),
    ("tests/unit/core/ATest.cpp", "#include <QTimer>\n", "without a desktop"),
    ("src/core/A.h", "struct A;\n", "#pragma once"),
    ("src/core/A.h", "#pragma once\nusing namespace std;\n", "opens no namespace"),
    ("src/core/A.cpp", "co_await send({1, 2});\n", "miscompiles temporaries"),
    ("src/core/A.cpp", 'co_await send("text");\n', "miscompiles temporaries"),
    ("src/core/A.cpp", "co_await (ready ? one : two);\n", "miscompiles temporaries"),
    ("src/core/A.cpp", "co_await run([&] { stop(); });\n", "miscompiles temporaries"),
    ("src/core/A.cpp", "Task<int> A::load(const std::string& id)\n", "by value"),
    ("src/core/A.cpp", "support::Task<void> load(int count, std::string_view id)\n", "by value"),
    ("src/core/A.cpp", "Task<std::vector<int>> load(std::string&& id);\n", "by value"),
    ("src/core/A.cpp", "auto later = [this]() -> Task<void> { co_return; };\n", "never a lambda"),
    ("desktop/qml/kit/Pill.qml", 'color: "#ff0000"\n', "Theme.qml only"),
    ("desktop/qml/kit/Pill.qml", 'border.color: "red"\n', "Theme.qml only"),
    ("desktop/qml/dashboard/A.qml", "    Text {\n", "through the kit"),
    ("desktop/qml/kit/A.qml", "import QtQuick.Controls as C\n", "stock controls"),
    ("desktop/qml/kit/Label.qml", "Text {\n    text: name\n}\n", "textFormat"),
    ("bench/a.py", 'import sys\nsys.path.append("tests")\n', "ours goes first"),
    ("bench/a.py", 'sys.path += ["tests"]\n', "ours goes first"),
    ("src/core/A.cpp", "\n" * 401, "more than one file holds"),
    ("src/core/StringUtils.cpp", "", "named after what it is"),
]

KEPT = [
    ("src/core/A.cpp", '#include <asio/awaitable.hpp>\n#include <simdjson.h>\n#include <vector>\n#include "model/Page.h"\n'),
    ("desktop/main.cpp", '#include "adapters/Curl.h"\n#include "bridge/Dashboard.h"\n'),
    ("src/core/A.cpp", "auto pages = co_await std::move(waiting);\n"),
    ("src/core/A.cpp", "if (co_await ready(name)) { stop(); }\n"),
    ("src/core/A.cpp", 'log(co_await std::move(first) + " ended");\n'),
    ("src/core/A.cpp", "lists.pages = co_await api_.fetch(path, std::move(body), std::nullopt);\n"),
    ("src/core/A.cpp", "// co_await {temporaries} are wrong\n"),
    ("src/core/A.cpp", "Task<int> load(KestruneAPI& api, std::vector<int> ids)\n"),
    ("src/core/A.cpp", "Task<int> load(std::function<void(const std::string&)> told)\n"),
    ("src/core/A.cpp", "const auto now = [this] { return clock_.now(); };\n"),
    ("desktop/qml/kit/Theme.qml", 'readonly property color window: "#f4f5f7"\n'),
    ("desktop/qml/kit/Pill.qml", 'color: "transparent"\n'),
    ("desktop/qml/dashboard/A.qml", "import QtQuick.Templates as T\nT.ItemDelegate {\n    Label {\n"),
    ("bench/a.py", 'sys.path.insert(0, "tests")\n'),
    ("desktop/qml/kit/Label.qml", "Text {\n    textFormat: Text.PlainText\n    text: name\n}\n"),
]


@pytest.mark.parametrize("path, text, sentence", BROKEN)
def test_a_breach_is_named(path, text, sentence):
    assert sentence in " ".join(breach.sentence for breach in breaches(path, text))


@pytest.mark.parametrize("path, text", KEPT)
def test_what_keeps_the_rules_passes(path, text):
    assert breaches(path, text) == []
