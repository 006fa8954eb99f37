#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace larkspan::simulator {

using Headers = std::vector<std::pair<std::string, std::string>>;

struct Request {
    /// The header's value, ignoring the case of `name`; the first one if it is repeated.
    std::optional<std::string_view> header(std::string_view name) const;

    /// The target up to its "?".
    std::string_view path() const;

    /// The first value of that name in the query, percent-decoded.
    std::optional<std::string> query(std::string_view name) const;

    /// That value split at its commas; empty if it is missing or empty.
    std::vector<std::string> queryList(std::string_view name) const;

    std::string method;
    std::string target;
    Headers headers;
    std::string body;
};

/// The way in which an answer is sent to the client.
struct Delivery {
    enum class Ending {
        whole,
        /// The connection ends after `bodyBytes` of the body, without a reset.
        truncated,
        /// The connection is reset after `bodyBytes` of the body.
        reset,
        /// The connection ends before the first byte of the answer.
        closedBeforeFirstByte,
        /// Nothing is sent, and the connection stays open.
        hanging,
        /// The answer is a text that is not HTTP.
        notHttp,
    };

    Ending ending = Ending::whole;
    std::uint64_t bodyBytes = 0;
    /// Only the end of the connection marks the end of the body.
    bool hidesLength = false;
    /// The delay before the first byte.
    std::chrono::milliseconds delay{0};
    /// The pause after each `dripBytes` of the body; zero for none.
    std::chrono::milliseconds dripPause{0};
    std::uint64_t dripBytes = 1;
};

/// An answer of the service.
struct Reply {
    std::uint64_t bodySize() const { return body.size() + padding; }

    int status = 200;
    std::string contentType = "application/json";
    Headers headers;
    std::string body;
    /// The number of blanks that follow the body, which need not be kept in memory.
    std::uint64_t padding = 0;
    /// Whether the body is sent as gzip to a client that accepts it.
    bool isPacked = false;
    Delivery delivery;
};

}  // namespace larkspan::simulator
