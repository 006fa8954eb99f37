#pragma once

#include <string_view>
#include <vector>

namespace larkspan::fuzz {

using Check = void (*)(std::string_view input);

/// What is fed arbitrary bytes. Its name is that of its file, its folder in `seeds` and its dictionary, if it has one.
struct Target {
    std::string_view name;
    Check check;
};

/// Those that are linked into the program: one in a fuzzer, all in the tests.
std::vector<Target>& targets();

struct Registration {
    Registration(std::string_view name, Check check) { targets().push_back({name, check}); }
};

/// Fails the target with this sentence, which says what must hold.
void require(bool holds, const char* sentence);

}  // namespace larkspan::fuzz

/// Defines the target `name` by what it does with `input`.
#define FUZZ_TARGET(name, input)                                                                                       \
    static void name(std::string_view input);                                                                          \
    static const larkspan::fuzz::Registration registered(#name, name);                                                 \
    static void name(std::string_view input)
