#include "model/json/KeyConversion.h"

namespace larkspan::model {

namespace {

// The C library's functions depend on the process's locale.
bool isSmall(char letter)
{
    return letter >= 'a' && letter <= 'z';
}

bool isCapital(char letter)
{
    return letter >= 'A' && letter <= 'Z';
}

char lowered(char letter)
{
    return isCapital(letter) ? static_cast<char>(letter - 'A' + 'a') : letter;
}

char raised(char letter)
{
    return isSmall(letter) ? static_cast<char>(letter - 'a' + 'A') : letter;
}

}  // namespace

std::string_view fromSnakeCase(std::string_view wireKey, std::string& buffer)
{
    // Most keys are one word, so this is the usual case in a long list of records.
    if (wireKey.find('_') == std::string_view::npos) return wireKey;

    const auto begin = wireKey.find_first_not_of('_');
    if (begin == std::string_view::npos) return wireKey;
    const auto end = wireKey.find_last_not_of('_') + 1;
    const auto words = wireKey.substr(begin, end - begin);
    if (words.find('_') == std::string_view::npos) return wireKey;

    buffer.assign(wireKey.substr(0, begin));
    char previous = '\0';
    for (const char letter : words) {
        if (letter != '_') buffer += previous == '_' ? raised(letter) : lowered(letter);
        previous = letter;
    }
    buffer += wireKey.substr(end);
    return buffer;
}

std::string toSnakeCase(std::string_view keyName)
{
    std::string wireKey;
    char previous = '\0';
    for (const char letter : keyName) {
        if (isCapital(letter) && isSmall(previous)) wireKey += '_';
        wireKey += lowered(letter);
        previous = letter;
    }
    return wireKey;
}

}  // namespace larkspan::model
