#pragma once

#include <string>

#include "model/bodies/RequestBodies.h"

namespace larkspan::model {

namespace detail {

/// Compiled for each of `RequestBodies`.
template <typename Body>
std::string encodeBody(const Body& body);

}  // namespace detail

/// Writes the bodies of requests. Safe to share between threads.
class JSONEncoder {
public:
    /// `body` as a JSON object without its absent fields. Throws `EncodingError`.
    template <typename Body>
    std::string encode(const Body& body) const
    {
        static_assert(RequestBodies::holds<Body>,
            "a body is named in model/bodies/RequestBodies.h, from where the encoder knows it");
        return detail::encodeBody(body);
    }
};

}  // namespace larkspan::model
