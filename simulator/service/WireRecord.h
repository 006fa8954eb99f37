#pragma once

#include <concepts>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "json/Json.h"
#include "json/WireDate.h"

namespace larkspan::simulator {

/// The value of a record for one key; may be absent.
class WireValue {
public:
    template <typename Value>
        requires std::constructible_from<Json, Value>
    WireValue(Value value)
        : json_(Json(std::move(value)))
    {
    }

    WireValue(support::Time time)
        : json_(wireDate(time))
    {
    }

    template <typename Value>
    WireValue(const std::optional<Value>& value)
        : json_(value ? WireValue(*value).json_ : std::nullopt)
    {
    }

    const std::optional<Json>& json() const { return json_; }

private:
    std::optional<Json> json_;
};

/// A record on the wire, key by key; absent values are left out.
Json wireRecord(std::initializer_list<std::pair<const char*, WireValue>> fields);

/// An id as the service sends it: as a number if it consists of digits.
Json wireId(const std::string& id);

/// The result of `wire` for each of the records.
template <typename Record, typename Wire>
Json wireList(const std::vector<Record>& records, Wire wire)
{
    auto list = Json::array();
    for (const auto& record : records) list.push_back(wire(record));
    return list;
}

}  // namespace larkspan::simulator
