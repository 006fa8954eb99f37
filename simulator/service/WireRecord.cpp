#include "service/WireRecord.h"

#include <charconv>
#include <cstdint>

namespace larkspan::simulator {

Json wireRecord(std::initializer_list<std::pair<const char*, WireValue>> fields)
{
    Json::Object members;
    members.reserve(fields.size());
    for (const auto& [key, value] : fields) {
        if (value.json()) members.emplace_back(key, *value.json());
    }
    return members;
}

Json wireId(const std::string& id)
{
    std::int64_t number = 0;
    const auto* const end = id.data() + id.size();
    const auto [stop, error] = std::from_chars(id.data(), end, number);
    return error == std::errc{} && stop == end ? Json(number) : Json(id);
}

}  // namespace larkspan::simulator
