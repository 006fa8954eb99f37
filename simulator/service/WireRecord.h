#pragma once

#include <optional>
#include <string>
#include <utility>

#include "json/Json.h"
#include "json/WireDate.h"

namespace larkspan::simulator {

/// A record on its way onto the wire; what is absent is left out.
class WireRecord {
public:
    WireRecord& with(const char* key, Json value)
    {
        members_.emplace_back(key, std::move(value));
        return *this;
    }

    WireRecord& with(const char* key, const std::optional<std::string>& text)
    {
        return text ? with(key, Json(*text)) : *this;
    }

    WireRecord& with(const char* key, const std::optional<support::Time>& time)
    {
        return time ? with(key, Json(wireDate(*time))) : *this;
    }

    Json json() { return std::move(members_); }

private:
    Json::Object members_;
};

}  // namespace larkspan::simulator
