#include "service/WireRecord.h"

#include <charconv>
#include <cstdint>

namespace larkspan::simulator {

Json wireRecord(std::initializer_list<std::pair<const char*, WireValue>> fields)
{
    auto record = Json::object();
    for (const auto& [key, value] : fields) {
        if (value.json()) record[key] = *value.json();
    }
    return record;
}

Json wireId(const std::string& id)
{
    std::int64_t number = 0;
    const auto* const end = id.data() + id.size();
    const auto [stop, error] = std::from_chars(id.data(), end, number);
    return error == std::errc{} && stop == end ? Json(number) : Json(id);
}

}  // namespace larkspan::simulator
