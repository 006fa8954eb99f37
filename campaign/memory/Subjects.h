#pragma once

#include <functional>
#include <string>
#include <vector>

namespace larkspan::campaign {

/// Something that takes memory, without any effect that stays.
struct Subject {
    std::string name;
    std::function<void()> run;
};

/// The client's readers and writers of others' texts.
std::vector<Subject> subjects();

}  // namespace larkspan::campaign
