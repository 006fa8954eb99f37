#pragma once

#include <string>
#include <vector>

namespace larkspan::campaign {

/// What a field of a record takes on the wire.
enum class Takes { text, word, date, integerOrText, integer, number, boolean, list, object, anything };

struct Field {
    /// The place in the record, as a JSON pointer.
    std::string place;
    Takes takes = Takes::text;
    bool isRequired = false;
};

/// A record with every field that it can have, and what each takes.
struct Record {
    std::string name;
    /// With apostrophes in place of quotation marks.
    std::string sample;
    std::vector<Field> fields;
};

const std::vector<Record>& records();

}  // namespace larkspan::campaign
