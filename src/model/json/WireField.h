#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "model/json/WireRow.h"

/// Declares a field of a record together with its form on the wire:
///
///     WIRE_FIELD(std::string, name);
///     WIRE_FIELD(std::optional<support::Time>, resolvedAt, key("endedAt"));
///
/// Its key name is the field's name unless a `key` is given. An optional field may be missing on the wire; any other
/// missing field fails the record unless it has an `otherwise`. An `identifier` may be an integer on the wire, and an
/// optional field that is `forgiving` may be anything.
///
/// A class cannot enumerate its members, so a row is found by the source line of its field; see `WireTable.h`.
#define WIRE_FIELD(Type, name, ...)                                                                                    \
    static_assert(__LINE__ <= ::larkspan::model::lastLine, "a header is never as long as this");                       \
    template <typename Record>                                                                                         \
    static constexpr auto rowAt(::larkspan::model::Line<__LINE__>)                                                     \
    {                                                                                                                  \
        return ::larkspan::model::wireRow(#name, &Record::name __VA_OPT__(, ) __VA_ARGS__);                            \
    }                                                                                                                  \
    Type name = ::larkspan::model::initialValue<Type>(__VA_ARGS__)

namespace larkspan::model {

inline constexpr int lastLine = 400;

template <int line>
using Line = std::integral_constant<int, line>;

/// The key name of a field whose name on the wire is different.
struct Key {
    std::string_view name;
};

constexpr Key key(std::string_view name)
{
    return {name};
}

/// A text that may be an integer on the wire.
struct Identifier {};

inline constexpr Identifier identifier;

/// An optional field that is absent if its value cannot be read.
struct Forgiving {};

inline constexpr Forgiving forgiving;

/// The value of a field until it is read, and if it is missing.
template <typename Value>
struct Otherwise {
    Value value;
};

template <typename Value>
constexpr Otherwise<Value> otherwise(Value value)
{
    return {value};
}

template <typename Type>
constexpr Type initialValue()
{
    return Type{};
}

template <typename Type, typename Value>
constexpr Type initialValue(const Otherwise<Value>& otherwise)
{
    return otherwise.value;
}

template <typename Type, typename Other, typename... Rest>
constexpr Type initialValue(const Other&, const Rest&... rest)
{
    return initialValue<Type>(rest...);
}

template <typename Record, typename Field>
constexpr RequiredRow<Record, Field> wireRow(std::string_view name, Field Record::* field)
{
    return {name, field};
}

template <typename Record, typename Field>
constexpr OptionalRow<Record, Field> wireRow(std::string_view name, std::optional<Field> Record::* field)
{
    return {name, field};
}

template <typename Record, typename Field, typename Value>
constexpr DefaultedRow<Record, Field, Value> wireRow(
    std::string_view name, Field Record::* field, Otherwise<Value> otherwise)
{
    return {name, field, otherwise.value};
}

template <typename Record>
constexpr IdentifierRow<Record> wireRow(std::string_view name, std::string Record::* field, Identifier)
{
    return {name, field};
}

template <typename Record, typename Field>
constexpr ForgivingRow<Record, Field> wireRow(std::string_view name, std::optional<Field> Record::* field, Forgiving)
{
    return {name, field};
}

template <typename Record, typename Field, typename... Rest>
constexpr auto wireRow(std::string_view, Field Record::* field, Key key, Rest... rest)
{
    return wireRow(key.name, field, rest...);
}

}  // namespace larkspan::model
