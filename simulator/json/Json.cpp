#include "json/Json.h"

#include <simdjson.h>

#include <array>
#include <charconv>

namespace larkspan::simulator {

namespace {

void appendQuoted(std::string& text, std::string_view value)
{
    constexpr std::string_view hexDigits = "0123456789abcdef";
    text += '"';
    for (const char character : value) {
        const auto byte = static_cast<unsigned char>(character);
        if (character == '"' || character == '\\') {
            text += '\\';
            text += character;
        } else if (byte < 0x20) {
            text += "\\u00";
            text += hexDigits[byte >> 4];
            text += hexDigits[byte & 0xF];
        } else {
            text += character;
        }
    }
    text += '"';
}

template <typename Number>
void appendNumber(std::string& text, Number value)
{
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    text.append(digits.data(), end);
}

Json converted(const simdjson::dom::element& element)
{
    using Type = simdjson::dom::element_type;
    switch (element.type()) {
    case Type::ARRAY: {
        Json::Array items;
        for (const auto item : simdjson::dom::array(element)) items.push_back(converted(item));
        return items;
    }
    case Type::OBJECT: {
        Json::Object members;
        for (const auto [key, value] : simdjson::dom::object(element)) {
            members.emplace_back(std::string(key), converted(value));
        }
        return members;
    }
    case Type::STRING: return std::string(std::string_view(element));
    case Type::INT64: return std::int64_t(element);
    case Type::UINT64:
    case Type::DOUBLE: return double(element);
    case Type::BOOL: return bool(element);
    case Type::NULL_VALUE: break;
    }
    return {};
}

}  // namespace

Json Json::parse(std::string_view text)
{
    simdjson::dom::parser parser;
    try {
        return converted(parser.parse(text.data(), text.size()).value());
    } catch (const simdjson::simdjson_error& error) {
        throw Malformed(error.what());
    }
}

std::string Json::text() const
{
    std::string text;
    appendTo(text);
    return text;
}

std::optional<std::int64_t> Json::integer() const
{
    const auto* value = std::get_if<std::int64_t>(&value_);
    return value ? std::optional(*value) : std::nullopt;
}

std::optional<bool> Json::boolean() const
{
    const auto* value = std::get_if<bool>(&value_);
    return value ? std::optional(*value) : std::nullopt;
}

const Json* Json::find(std::string_view key) const
{
    if (const auto* members = object()) {
        for (const auto& [name, value] : *members) {
            if (name == key) return &value;
        }
    }
    return nullptr;
}

void Json::appendTo(std::string& text) const
{
    if (const auto* items = array()) {
        text += '[';
        for (const auto& item : *items) {
            if (&item != items->data()) text += ',';
            item.appendTo(text);
        }
        text += ']';
    } else if (const auto* members = object()) {
        text += '{';
        for (const auto& member : *members) {
            if (&member != members->data()) text += ',';
            appendQuoted(text, member.first);
            text += ':';
            member.second.appendTo(text);
        }
        text += '}';
    } else if (const auto* value = string()) {
        appendQuoted(text, *value);
    } else if (const auto* whole = std::get_if<std::int64_t>(&value_)) {
        appendNumber(text, *whole);
    } else if (const auto* fraction = std::get_if<double>(&value_)) {
        appendNumber(text, *fraction);
    } else if (const auto* truth = std::get_if<bool>(&value_)) {
        text += *truth ? "true" : "false";
    } else {
        text += "null";
    }
}

}  // namespace larkspan::simulator
