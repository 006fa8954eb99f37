#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "model/json/ISO8601.h"
#include "model/json/JSONValue.h"
#include "model/json/KeyConversion.h"
#include "model/json/KnownKeys.h"
#include "model/json/RawTexts.h"
#include "model/json/WireTable.h"
#include "model/records/URL.h"

namespace larkspan::model {

/// `value` as a `T`: a text (a view of one lives as long as the body), a number, a boolean, a date, a URL, a word of an
/// enumeration, a list, a map by converted keys, or a record of wire fields.
template <typename T>
T decode(const JSONValue& value);

/// A text that may be an integer on the wire.
struct IdentifierText {
    std::string text;
};

/// The value of an object for one key name of its record's table.
class KeyedValue {
public:
    KeyedValue(const JSONValue& object, std::string_view keyName, const std::optional<JSONValue::Member>& member)
        : object_(object)
        , keyName_(keyName)
        , member_(member)
    {
    }

    template <typename T>
    T required() const
    {
        if (!member_) object_.failMissing(keyName_);
        return decode<T>(JSONValue(object_, *member_));
    }

    /// Whether the value is neither missing nor null.
    bool isPresent() const { return member_ && !member_->element.is_null(); }

    template <typename T>
    std::optional<T> optional() const
    {
        if (!isPresent()) return std::nullopt;
        return required<T>();
    }

    /// As `optional`, but also absent if the value cannot be read.
    template <typename T>
    std::optional<T> ifReadable() const
    {
        try {
            return optional<T>();
        } catch (const DecodingError&) {
            return std::nullopt;
        }
    }

    /// The moment of decoding.
    support::Time now() const { return object_.now(); }

private:
    const JSONValue& object_;
    std::string_view keyName_;
    const std::optional<JSONValue::Member>& member_;
};

template <typename Record, typename Field>
void read(const RequiredRow<Record, Field>& row, Record& record, const KeyedValue& value)
{
    record.*row.field = value.required<Field>();
}

template <typename Record, typename Field>
void read(const OptionalRow<Record, Field>& row, Record& record, const KeyedValue& value)
{
    if (value.isPresent()) (record.*row.field).emplace(value.required<Field>());
}

template <typename Record, typename Field, typename Value>
void read(const DefaultedRow<Record, Field, Value>& row, Record& record, const KeyedValue& value)
{
    record.*row.field = value.optional<Field>().value_or(row.otherwise);
}

template <typename Record>
void read(const IdentifierRow<Record>& row, Record& record, const KeyedValue& value)
{
    record.*row.field = value.required<IdentifierText>().text;
}

template <typename Record, typename Field>
void read(const ForgivingRow<Record, Field>& row, Record& record, const KeyedValue& value)
{
    record.*row.field = value.ifReadable<Field>();
}

template <typename Record>
void read(const DerivedRow<Record>& row, Record& record, const KeyedValue& value)
{
    row.derive(record, value);
}

/// Fills `record`, which must be new; `keys` are those of other values of its kind.
template <typename Record>
void decodeRecord(const JSONValue& value, KnownKeys& keys, Record& record)
{
    std::array<std::optional<JSONValue::Member>, keyNames<Record>.size()> members;
    value.find(keys, members);
    std::apply(
        [&](const auto&... rows) {
            std::size_t at = 0;
            (read(rows, record, KeyedValue(value, rows.key, members[at++])), ...);
        },
        wireRows<Record>);
}

template <typename Element>
std::vector<Element> decodeList(const JSONValue& value)
{
    // For lists longer than any real one, no memory is reserved before their content is known to be good.
    constexpr std::size_t mostReserved = 16'384;

    constexpr bool hasRow = requires(Element element) { element.id; };
    const auto elements = hasRow ? value.recordList() : value.list();
    std::vector<Element> list;
    list.reserve(std::min(elements.size(), mostReserved));
    KnownKeys keys(keyNames<Element>);
    for (const auto element : elements) {
        const JSONValue each(value, list.size(), element);
        if constexpr (HasWireFields<Element>)
            decodeRecord(each, keys, list.emplace_back());
        else
            list.push_back(decode<Element>(each));
    }
    return list;
}

/// Of several keys that convert to the same name the first counts, as in a record.
template <typename Map>
Map decodeMap(const JSONValue& value)
{
    Map map;
    std::string buffer;
    for (const auto [wireKey, element] : value.map()) {
        const auto [place, isFirst] = map.try_emplace(std::string(fromSnakeCase(wireKey, buffer)));
        if (!isFirst) continue;
        place->second = decode<typename Map::mapped_type>(JSONValue(value, JSONValue::Member{wireKey, element}));
    }
    return map;
}

template <typename Enumeration>
Enumeration decodeWord(const JSONValue& value)
{
    const auto word = value.text();
    for (const auto& row : RawTexts<Enumeration>::table) {
        if (row.text == word) return row.value;
    }
    value.failCorrupted("Unknown word: ", word);
}

inline support::Time decodeDate(const JSONValue& value)
{
    const auto text = value.text();
    if (const auto date = readISO8601(text)) return *date;
    value.failCorrupted("Cannot decode date: ", text);
}

inline URL decodeURL(const JSONValue& value)
{
    const auto text = value.text();
    if (auto url = URL::parse(text)) return *std::move(url);
    value.failCorrupted("Not a valid URL: ", text);
}

inline IdentifierText decodeIdentifier(const JSONValue& value)
{
    if (const auto number = value.asInteger()) return {std::to_string(*number)};
    return {std::string(value.text())};
}

template <typename T>
struct IsList : std::false_type {};

template <typename Element>
struct IsList<std::vector<Element>> : std::true_type {};

template <typename T>
struct IsMap : std::false_type {};

template <typename Value>
struct IsMap<std::map<std::string, Value>> : std::true_type {};

template <typename T>
T decode(const JSONValue& value)
{
    if constexpr (std::same_as<T, std::string>)
        return std::string(value.text());
    else if constexpr (std::same_as<T, std::string_view>)
        return value.text();
    else if constexpr (std::same_as<T, std::int64_t>)
        return value.integer();
    else if constexpr (std::same_as<T, double>)
        return value.number();
    else if constexpr (std::same_as<T, bool>)
        return value.boolean();
    else if constexpr (std::same_as<T, support::Time>)
        return decodeDate(value);
    else if constexpr (std::same_as<T, URL>)
        return decodeURL(value);
    else if constexpr (std::same_as<T, IdentifierText>)
        return decodeIdentifier(value);
    else if constexpr (std::is_enum_v<T>)
        return decodeWord<T>(value);
    else if constexpr (IsList<T>::value)
        return decodeList<typename T::value_type>(value);
    else if constexpr (IsMap<T>::value)
        return decodeMap<T>(value);
    else {
        KnownKeys keys(keyNames<T>);
        T record{};
        decodeRecord(value, keys, record);
        return record;
    }
}

}  // namespace larkspan::model
