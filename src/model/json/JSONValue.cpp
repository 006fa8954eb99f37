#include "model/json/JSONValue.h"

#include <array>
#include <charconv>
#include <cmath>

#include "model/json/KeyConversion.h"
#include "model/json/LegibleText.h"
#include "model/json/NumbersOutOfRange.h"

namespace larkspan::model {

namespace {

constexpr std::size_t longestQuotation = 200;

std::string_view nameOf(simdjson::dom::element_type type)
{
    using Type = simdjson::dom::element_type;
    switch (type) {
    case Type::ARRAY: return "a list";
    case Type::OBJECT: return "an object";
    case Type::STRING: return "a string";
    case Type::BOOL: return "a boolean";
    case Type::NULL_VALUE: return "null";
    case Type::INT64:
    case Type::UINT64:
    case Type::DOUBLE: break;
    }
    return "a number";
}

std::string written(double number)
{
    std::array<char, 32> text;
    const auto end = std::to_chars(text.begin(), text.end(), number).ptr;
    return {text.begin(), end};
}

}  // namespace

void JSONReading::failIfTooLong() const
{
    const auto fail = [](std::size_t most, const char* what) {
        throw DecodingError(DecodingError::Kind::dataCorrupted, "", "More than " + std::to_string(most) + what);
    };
    if (records > mostRecords) fail(mostRecords, " records");
    if (entries > mostEntries) fail(mostEntries, " entries");
}

bool JSONValue::boolean() const
{
    bool truth = false;
    if (element_.get(truth) != simdjson::SUCCESS) failMismatch("a boolean");
    return truth;
}

double JSONValue::number() const
{
    double number = 0;
    if (element_.get(number) != simdjson::SUCCESS) failMismatch("a number");
    if (number == outOfRange) failCorrupted("Not a 64-bit number", "");
    return number;
}

std::optional<std::int64_t> JSONValue::asInteger() const
{
    constexpr double exactUpTo = 9'007'199'254'740'991;  // 2^53 - 1

    std::int64_t integer = 0;
    if (element_.get(integer) == simdjson::SUCCESS) return integer;
    double number = 0;
    if (element_.get(number) != simdjson::SUCCESS) return std::nullopt;
    if (std::trunc(number) != number || std::abs(number) > exactUpTo) return std::nullopt;
    return static_cast<std::int64_t>(number);
}

std::int64_t JSONValue::integer() const
{
    if (const auto integer = asInteger()) return *integer;
    if (!element_.is_number()) failMismatch("an integer");
    failCorrupted("Not a 64-bit integer: ", written(number()));
}

simdjson::dom::array JSONValue::list() const
{
    simdjson::dom::array list;
    if (element_.get(list) != simdjson::SUCCESS) failMismatch("a list");
    count(list.size());
    return list;
}

simdjson::dom::array JSONValue::recordList() const
{
    const auto records = list();
    reading_.records += records.size();
    reading_.failIfTooLong();
    return records;
}

simdjson::dom::object JSONValue::map() const
{
    const auto map = object();
    count(map.size());
    return map;
}

simdjson::dom::object JSONValue::object() const
{
    simdjson::dom::object object;
    if (element_.get(object) != simdjson::SUCCESS) failMismatch("an object");
    return object;
}

void JSONValue::count(std::size_t entries) const
{
    reading_.entries += entries;
    reading_.failIfTooLong();
}

void JSONValue::find(KnownKeys& keys, std::span<std::optional<Member>> found) const
{
    for (const auto [wireKey, element] : object()) {
        const auto place = keys.placeOf(wireKey);
        if (place < found.size() && !found[place]) found[place] = Member{wireKey, element};
    }
}

std::optional<simdjson::dom::element> JSONValue::exactly(std::string_view wireKey) const
{
    simdjson::dom::object object;
    simdjson::dom::element element;
    if (element_.get(object) != simdjson::SUCCESS) return std::nullopt;
    if (object.at_key(wireKey).get(element) != simdjson::SUCCESS) return std::nullopt;
    return element;
}

void JSONValue::failMissing(std::string_view keyName) const
{
    const auto wireKey = toSnakeCase(keyName);
    throw DecodingError(DecodingError::Kind::keyNotFound, CodingPath(&path_, wireKey).text(), "The key is missing");
}

void JSONValue::failCorrupted(std::string_view problem, std::string_view received) const
{
    throw DecodingError(
        DecodingError::Kind::dataCorrupted, path_.text(), std::string(problem) + legible(received, longestQuotation));
}

void JSONValue::failMismatch(std::string_view wanted) const
{
    const auto kind = isNull() ? DecodingError::Kind::valueNotFound : DecodingError::Kind::typeMismatch;
    throw DecodingError(
        kind, path_.text(), "Expected " + std::string(wanted) + " but found " + std::string(nameOf(element_.type())));
}

}  // namespace larkspan::model
