#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "service/Exchange.h"
#include "json/Json.h"

namespace larkspan::simulator {

/// What can be wrong with an answer. Some faults change what the answer says, some how it travels.
namespace fault {

/// Another status, with an error body as the service sends it.
struct Status {
    int code = 500;
};

struct Delay {
    std::chrono::milliseconds time{0};
};

struct Hang {};

/// The body arrives a few bytes at a time.
struct Drip {
    std::uint64_t bytes = 1;
    std::chrono::milliseconds pause{1'000};
};

/// Where a cut says no number of bytes, it falls in the middle of the body.
struct Reset {
    std::optional<std::uint64_t> afterBodyBytes = {};
};

/// With its length hidden, the body looks whole to all who miss the end of TLS.
struct Truncation {
    std::optional<std::uint64_t> afterBodyBytes = {};
    bool hidesLength = false;
};

struct ClosedBeforeFirstByte {};

struct NotHttp {};

/// Another body under the status that the answer has.
struct Body {
    std::string text;
    std::string contentType = "application/json";
};

/// A body that is no JSON and no UTF-8 either.
struct Garbage {};

/// Lists arrive as objects and objects as lists.
struct WrongShape {};

/// The middle element of the list lacks its id.
struct BadElement {};

struct DeepNesting {
    std::size_t depth = 10'000;
};

/// Packed, it travels as a few kilobytes.
struct HugeBody {
    std::uint64_t bytes = 200'000'000;
    bool isPacked = false;
};

/// A Location within the origin is a path.
struct Redirect {
    std::string location;
    int code = 302;
};

}  // namespace fault

using Fault = std::variant<fault::Status, fault::Delay, fault::Hang, fault::Drip, fault::Reset, fault::Truncation,
    fault::ClosedBeforeFirstByte, fault::NotHttp, fault::Body, fault::Garbage, fault::WrongShape, fault::BadElement,
    fault::DeepNesting, fault::HugeBody, fault::Redirect>;

/// Lets the fault have its way with what an answer says, before it becomes text.
void spoil(const Fault& fault, Json& result);

/// Lets the fault have its way with an answer that is complete.
void spoil(const Fault& fault, Reply& reply);

}  // namespace larkspan::simulator
