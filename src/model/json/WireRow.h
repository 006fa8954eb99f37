#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace larkspan::model {

class KeyedValue;

/// One key of a record. A missing key and null fail the record. Always written.
template <typename Record, typename Field>
struct RequiredRow {
    std::string_view key;
    Field Record::* field;
};

/// A missing key and null leave the field absent. Written only when present.
template <typename Record, typename Field>
struct OptionalRow {
    std::string_view key;
    std::optional<Field> Record::* field;
};

/// A missing key and null give `otherwise`. Always written.
template <typename Record, typename Field, typename Value>
struct DefaultedRow {
    std::string_view key;
    Field Record::* field;
    Value otherwise;
};

/// As `RequiredRow`, but an integer is accepted as well and kept as its decimal text.
template <typename Record>
struct IdentifierRow {
    std::string_view key;
    std::string Record::* field;
};

/// As `OptionalRow`, but a value that cannot be read leaves the field absent too.
template <typename Record, typename Field>
struct ForgivingRow {
    std::string_view key;
    std::optional<Field> Record::* field;
};

/// `derive` computes fields of the record from the key's value and from the rows above, which have been read.
template <typename Record>
struct DerivedRow {
    std::string_view key;
    void (*derive)(Record&, const KeyedValue&);
};

/// A row of a record's `derivations`.
template <typename Record>
constexpr DerivedRow<Record> derived(std::string_view key, void (*derive)(Record&, const KeyedValue&))
{
    return {key, derive};
}

}  // namespace larkspan::model
