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

/// What all values of a body that is read share.
struct JSONReading {
    /// What all lists and maps of a body may hold together, and how much of it may be records with a row of their own.
    /// A screen shows at once what it gets, and each takes its time there.
    static constexpr std::size_t mostEntries = 100'000;
    static constexpr std::size_t mostRecords = 20'000;

    /// The moment of decoding.
    support::Time now;
    /// In the lists and maps that have been read.
    std::size_t entries = 0;
    std::size_t records = 0;

    /// Throws a `DecodingError` about the body as a whole.
    void failIfTooLong() const;
};

/// A value of a parsed body and its place in it. It reads as exactly one type, strictly: no text is taken for a number,
/// no number for a boolean. What it is not, it throws as a `DecodingError`. Lives on the stack of its reader only.
class JSONValue {
public:
    /// One key of an object as it was sent, with its value.
    struct Member {
        std::string_view wireKey;
        simdjson::dom::element element;
    };

    /// The root of a body; `reading` outlives all that is read from it.
    JSONValue(simdjson::dom::element root, JSONReading& reading)
        : element_(root)
        , reading_(reading)
    {
    }

    /// A value inside of `parent`, at a key or an index.
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

    /// The integer that this is, if it is one within 64 bits. A number with a fraction of zero is one too (`1.0`,
    /// `1e3`), as long as a double can still tell it from its neighbours (below 2^53).
    std::optional<std::int64_t> asInteger() const;

    /// As `asInteger`; any other number is corrupted.
    std::int64_t integer() const;

    simdjson::dom::array list() const;
    /// A list of records with a row of their own.
    simdjson::dom::array recordList() const;
    /// An object whose keys are entries.
    simdjson::dom::object map() const;

    /// Puts each key that converts to one of the names of `keys` at that name's place in `found`, which has as many.
    /// Where several keys convert to one name the first counts, whatever the others hold.
    void find(KnownKeys& keys, std::span<std::optional<Member>> found) const;

    /// The value of the object's key spelled exactly `wireKey`; nothing if this is no object or has none.
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
