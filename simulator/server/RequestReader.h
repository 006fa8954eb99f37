#pragma once

#include <boost/beast/core/flat_buffer.hpp>

#include <chrono>
#include <optional>

#include "server/Connection.h"
#include "service/Exchange.h"

namespace larkspan::simulator {

/// The requests that come over a connection, one after the other.
class RequestReader {
public:
    /// The connection outlives the reader.
    explicit RequestReader(Connection& connection)
        : connection_(connection)
    {
    }

    /// Nothing where none begins within that time, the client goes away, or what it sends is not HTTP.
    std::optional<Request> next(std::chrono::milliseconds within);

    /// Whether the client wants another answer on this connection behind the one to its last request.
    bool isKept() const { return isKept_; }

private:
    Connection& connection_;
    boost::beast::flat_buffer buffer_;
    bool isKept_ = true;
};

}  // namespace larkspan::simulator
