#pragma once

#include <string>

namespace larkspan::model {

/// Writes the bodies of requests. Safe to share between threads.
class JSONEncoder {
public:
    /// `request` as a JSON object without its absent fields. Throws `EncodingError`. Instantiated for every request
    /// record.
    template <typename Request>
    std::string encode(const Request& request) const;
};

}  // namespace larkspan::model
