// The names of keys, in both directions, against the rule written down plainly.

#include <array>
#include <string>
#include <vector>

#include "Target.h"
#include "model/json/KeyConversion.h"
#include "model/json/KnownKeys.h"
#include "support/Utf8.h"

using namespace larkspan;
using fuzz::require;

namespace {

char changed(char letter, char first, char by)
{
    return letter >= first && letter <= first + 25 ? static_cast<char>(letter + by) : letter;
}

std::string lowered(std::string word)
{
    for (char& letter : word) letter = changed(letter, 'A', 'a' - 'A');
    return word;
}

std::string capitalized(std::string word)
{
    word = lowered(std::move(word));
    word.front() = changed(word.front(), 'a', 'A' - 'a');
    return word;
}

std::string expected(std::string_view key)
{
    const auto begin = key.find_first_not_of('_');
    if (begin == std::string_view::npos) return std::string(key);
    const auto end = key.find_last_not_of('_') + 1;
    std::vector<std::string> words{""};
    for (const char letter : key.substr(begin, end - begin)) {
        if (letter != '_')
            words.back() += letter;
        else if (!words.back().empty())
            words.emplace_back();
    }
    if (words.size() == 1) return std::string(key);
    std::string name(key.substr(0, begin));
    name += lowered(words.front());
    for (std::size_t at = 1; at < words.size(); ++at) name += capitalized(words[at]);
    return name.append(key.substr(end));
}

}  // namespace

FUZZ_TARGET(key_conversion, input)
{
    std::string buffer;
    const std::string name(model::fromSnakeCase(input, buffer));
    require(name == expected(input), "a wire key converts word by word");
    require(!support::isValidUtf8(input) || support::isValidUtf8(name), "a converted key is valid text");
    std::string again;
    require(model::fromSnakeCase(name, again) == name, "a key name converts to itself");

    const auto wireKey = model::toSnakeCase(input);
    require(wireKey.size() <= input.size() * 2, "a wire key has one underscore for each letter at most");
    require(wireKey == lowered(wireKey) && model::toSnakeCase(wireKey) == wireKey, "a wire key has no capitals");
    require(!support::isValidUtf8(input) || support::isValidUtf8(wireKey), "a wire key is valid text");

    const std::array<std::string_view, 3> names{"createdAt", name, "id"};
    model::KnownKeys keys(names);
    for (int round = 0; round < 2; ++round) {
        const auto place = keys.placeOf(input);
        require(place < names.size() && names[place] == name, "a record finds the key that converts to its field");
        require(keys.placeOf("created_at") == 0, "what was looked up before changes nothing");
    }
}
