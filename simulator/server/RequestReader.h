#pragma once

#include <boost/beast/core/flat_buffer.hpp>

#include <chrono>
#include <optional>

#include "server/Connection.h"
#include "service/Exchange.h"

namespace larkspan::simulator {

/// Reads the requests of a connection one after the other.
class RequestReader {
public:
    /// The connection must outlive the reader.
    explicit RequestReader(Connection& connection)
        : connection_(connection)
    {
    }

    /// The next request; empty if none starts within that time, the client disconnects or does not send HTTP.
    std::optional<Request> next(std::chrono::milliseconds within);

    /// Whether the client keeps the connection open after the answer to its last request.
    bool isKept() const { return isKept_; }

private:
    Connection& connection_;
    boost::beast::flat_buffer buffer_;
    bool isKept_ = true;
};

}  // namespace larkspan::simulator
