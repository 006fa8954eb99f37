#include "json/Json.h"

namespace larkspan::simulator {

Json parsedJson(std::string_view text)
{
    return Json::parse(text);
}

std::string textOf(const Json& json)
{
    constexpr int onOneLine = -1;
    return json.dump(onOneLine, ' ', false, Json::error_handler_t::replace);
}

}  // namespace larkspan::simulator
