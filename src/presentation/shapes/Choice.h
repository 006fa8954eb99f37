#pragma once

#include <string>
#include <utility>
#include <vector>

#include "presentation/text/NameText.h"

namespace larkspan::presentation {

/// One entry of a picker; an empty id means no selection.
struct Choice {
    std::string id{};
    std::string name{};

    bool operator==(const Choice&) const = default;
};

/// One entry for each of `records`, after one that means no selection.
template <typename Record>
std::vector<Choice> choicesOf(std::string nameOfNone, const std::vector<Record>& records)
{
    std::vector<Choice> entries{{.id = "", .name = std::move(nameOfNone)}};
    entries.reserve(records.size() + 1);
    for (const auto& record : records) entries.push_back({.id = record.id, .name = rowTitle(record.name)});
    return entries;
}

}  // namespace larkspan::presentation
