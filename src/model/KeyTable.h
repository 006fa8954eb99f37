#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <tuple>

namespace larkspan::model {

class KeyedValue;

/// The wire side of a record: one row for each key, in the order in which they are read and written. A specialization
/// stands beside each record, `static constexpr auto rows = std::tuple{required("id", &Record::id), ...}`.
template <typename Record>
struct KeyTable;

template <typename Record, typename Field>
struct Required {
    std::string_view key;
    Field Record::*field;
};

template <typename Record, typename Field>
struct Optional {
    std::string_view key;
    std::optional<Field> Record::*field;
};

template <typename Record, typename Field, typename Default>
struct Defaulted {
    std::string_view key;
    Field Record::*field;
    Default otherwise;
};

template <typename Record>
struct Identifier {
    std::string_view key;
    std::string Record::*field;
};

template <typename Record>
struct Derived {
    std::string_view key;
    void (*derive)(Record&, const KeyedValue&);
};

/// A missing key and null fail the record. Always written.
template <typename Record, typename Field>
constexpr Required<Record, Field> required(std::string_view key, Field Record::*field)
{
    return {key, field};
}

/// A missing key and null leave the field absent. Written only when present.
template <typename Record, typename Field>
constexpr Optional<Record, Field> optional(std::string_view key, std::optional<Field> Record::*field)
{
    return {key, field};
}

/// A missing key and null give `otherwise`.
template <typename Record, typename Field, typename Default>
constexpr Defaulted<Record, Field, Default> defaulted(std::string_view key, Field Record::*field, Default otherwise)
{
    return {key, field, otherwise};
}

/// As `required`, with an integer taken as well and kept as its decimal text.
template <typename Record>
constexpr Identifier<Record> identifier(std::string_view key, std::string Record::*field)
{
    return {key, field};
}

/// `derive` works out fields of the record from what the key holds and from the rows above, which are read already.
template <typename Record>
constexpr Derived<Record> derived(std::string_view key, void (*derive)(Record&, const KeyedValue&))
{
    return {key, derive};
}

}  // namespace larkspan::model
