#pragma once

#include <simdjson.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "model/json/CodingPath.h"
#include "model/json/DecodingError.h"
#include "model/json/KnownKeys.h"
#include "support/Time.h"

namespace larkspan::model {

/// The state that all values of one body share while it is read.
struct JSONReading {
    /// The most entries of all lists and maps of a body together, and the most records that have a row each. A screen
    /// shows all of them at once, and each takes time there.
    static constexpr std::size_t mostEntries = 100'000;
    static constexpr std::size_t mostRecords = 20'000;

    /// The moment of decoding.
    support::Time now;
    /// The number of entries in the lists and maps read so far.
    std::size_t entries = 0;
    std::size_t records = 0;

    /// Throws a `DecodingError` about the body as a whole.
    void failIfTooLong() const;
};

/// A value of a parsed body and its place in it. It is read as exactly one type: a text is never accepted as a number,
/// nor a number as a boolean; a mismatch throws a `DecodingError`. Exists on the stack of its reader only.
class JSONValue {
public:
    /// One key of an object as it was sent, with its value.
    struct Member {
        std::string_view wireKey;
        simdjson::dom::element element;
    };

    /// The root of a body; `reading` must outlive everything that is read from it.
    JSONValue(simdjson::dom::element root, JSONReading& reading)
        : element_(root)
        , reading_(reading)
    {
    }

    /// A value in `parent`, at a key or an index.
    JSONValue(const JSONValue& parent, const Member& member)
        : element_(member.element)
        , path_(&parent.path_, member.wireKey)
        , reading_(parent.reading_)
    {
    }

    JSONValue(const JSONValue& parent, std::size_t index, simdjson::dom::element element)
        : element_(element)
        , path_(&parent.path_, index)
        , reading_(parent.reading_)
    {
    }

    JSONValue(const JSONValue&) = delete;
    JSONValue& operator=(const JSONValue&) = delete;

    bool isNull() const { return element_.is_null(); }

    std::string_view text() const
    {
        std::string_view text;
        if (element_.get(text) != simdjson::SUCCESS) failMismatch("a string");
        return text;
    }
    bool boolean() const;
    double number() const;

    /// The value as an integer of 64 bits, if it is one. A number with a fraction of zero counts (`1.0`, `1e3`) if a
    /// double represents it exactly (below 2^53).
    std::optional<std::int64_t> asInteger() const;

    /// As `asInteger`; throws `dataCorrupted` for any other number.
    std::int64_t integer() const;

    simdjson::dom::array list() const;
    /// A list of records, each of which has a row on screen.
    simdjson::dom::array recordList() const;
    /// An object whose keys count as entries.
    simdjson::dom::object map() const;

    /// Stores each member whose key converts to one of the names of `keys` at that name's place in `found`, which has
    /// as many. If several keys convert to one name, the first counts, whatever the others hold.
    void find(KnownKeys& keys, std::span<std::optional<Member>> found) const;

    /// The value of the object's key spelled exactly `wireKey`; empty if this is no object or has no such key.
    std::optional<simdjson::dom::element> exactly(std::string_view wireKey) const;

    [[noreturn]] void failMissing(std::string_view keyName) const;
    [[noreturn]] void failCorrupted(std::string_view problem, std::string_view received) const;

    support::Time now() const { return reading_.now; }

private:
    simdjson::dom::object object() const;
    void count(std::size_t entries) const;
    [[noreturn]] void failMismatch(std::string_view wanted) const;

    simdjson::dom::element element_;
    CodingPath path_;
    JSONReading& reading_;
};

}  // namespace larkspan::model
