#include "api/APIKey.h"

#include <algorithm>

namespace larkspan::api {

bool canStandInHeader(std::string_view key)
{
    return std::ranges::all_of(key, [](char c) { return c >= 0x21 && c <= 0x7E; });
}

}  // namespace larkspan::api
