#pragma once

#include <string>
#include <string_view>

#include "support/LocalizedError.h"

namespace larkspan::model {

/// An answer of the service that could not be read as the expected type. Its description is one line with the place and
/// what is wrong there: `data[3].name: The key is missing`, or, for the body as a whole, `The server’s answer: Not
/// valid JSON`.
class DecodingError : public support::LocalizedError {
public:
    enum class Kind {
        keyNotFound,  ///< a required key is missing
        valueNotFound,  ///< null where a value is required
        typeMismatch,  ///< another JSON type than the required one
        dataCorrupted,  ///< the right JSON type with an impossible value, or no JSON at all
    };

    DecodingError(Kind kind, std::string path, std::string_view problem);

    Kind kind() const { return kind_; }

    /// The place in the body, in the wire's spelling: `data[3].created_at`; empty for the body as a whole.
    const std::string& path() const { return path_; }

private:
    Kind kind_;
    std::string path_;
};

}  // namespace larkspan::model
