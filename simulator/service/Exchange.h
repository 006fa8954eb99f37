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

/// A request as it arrived.
struct Request {
    /// The header's value, its name in any case; the first where it is repeated.
    std::optional<std::string_view> header(std::string_view name) const;

    /// The target up to its "?".
    std::string_view path() const;

    /// The first value of that name in the query, its percent-encoding undone.
    std::optional<std::string> query(std::string_view name) const;

    /// What stands between the commas of that value; nothing where there is none or it is empty.
    std::vector<std::string> queryList(std::string_view name) const;

    std::string method;
    std::string target;
    Headers headers;
    std::string body;
};

/// How an answer travels; whoever carries it to the client obeys this.
struct Delivery {
    enum class Ending {
        whole,
        /// The connection ends behind `bodyBytes` of the body, without a reset.
        truncated,
        /// The connection is reset behind `bodyBytes` of the body.
        reset,
        /// The connection ends before the first byte of the answer.
        closedBeforeFirstByte,
        /// Nothing ever comes, and the connection stays open.
        hanging,
        /// The answer is some text that is not HTTP.
        notHttp,
    };

    Ending ending = Ending::whole;
    std::uint64_t bodyBytes = 0;
    /// The end of the body is told by the end of the connection only.
    bool hidesLength = false;
    /// Before the first byte.
    std::chrono::milliseconds delay{0};
    /// Behind each `dripBytes` of the body; no drip where this is zero.
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
    /// So many blanks follow the body, which nobody should have to hold in memory.
    std::uint64_t padding = 0;
    /// Where the client takes gzip, the body travels so.
    bool isPacked = false;
    Delivery delivery;
};

}  // namespace larkspan::simulator
