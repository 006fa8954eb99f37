#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace larkspan::simulator {

/// A JSON value. Objects keep the order of their members.
class Json {
public:
    using Array = std::vector<Json>;
    using Member = std::pair<std::string, Json>;
    using Object = std::vector<Member>;

    /// Thrown if a text is not JSON; the message says why.
    class Malformed : public std::runtime_error {
    public:
        using std::runtime_error::runtime_error;
    };

    Json() = default;
    Json(bool value)
        : value_(value)
    {
    }
    Json(int value)
        : value_(std::int64_t{value})
    {
    }
    Json(std::int64_t value)
        : value_(value)
    {
    }
    Json(double value)
        : value_(value)
    {
    }
    Json(const char* value)
        : value_(std::string(value))
    {
    }
    Json(std::string value)
        : value_(std::move(value))
    {
    }
    Json(Array value)
        : value_(std::move(value))
    {
    }
    Json(Object value)
        : value_(std::move(value))
    {
    }

    static Json object(std::initializer_list<Member> members) { return Json(Object(members)); }

    /// Throws `Malformed` if `text` is not JSON.
    static Json parse(std::string_view text);

    std::string text() const;

    bool isNull() const { return std::holds_alternative<std::monostate>(value_); }
    const std::string* string() const { return std::get_if<std::string>(&value_); }
    const Array* array() const { return std::get_if<Array>(&value_); }
    Array* array() { return std::get_if<Array>(&value_); }
    const Object* object() const { return std::get_if<Object>(&value_); }
    Object* object() { return std::get_if<Object>(&value_); }
    std::optional<std::int64_t> integer() const;
    std::optional<bool> boolean() const;

    /// The member of an object with this key; null if there is none.
    const Json* find(std::string_view key) const;

    bool operator==(const Json&) const = default;

private:
    void appendTo(std::string& text) const;

    std::variant<std::monostate, bool, std::int64_t, double, std::string, Array, Object> value_;
};

}  // namespace larkspan::simulator
