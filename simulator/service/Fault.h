#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "service/Exchange.h"
#include "json/JsonForward.h"

namespace larkspan::simulator {

/// The possible faults of an answer. Some change its content, some its delivery.
namespace fault {

/// Another status, with an error body as from the service.
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

/// Without a number of bytes, the cut is in the middle of the body.
struct Reset {
    std::optional<std::uint64_t> afterBodyBytes = {};
};

/// With its length hidden, the body seems complete to clients that do not check the end of TLS.
struct Truncation {
    std::optional<std::uint64_t> afterBodyBytes = {};
    bool hidesLength = false;
};

struct ClosedBeforeFirstByte {};

struct NotHttp {};

/// Another body with the answer's own status.
struct Body {
    std::string text;
    std::string contentType = "application/json";
};

/// A body that is neither JSON nor UTF-8.
struct Garbage {};

/// Lists arrive as objects and objects as lists.
struct WrongShape {};

/// The middle element of the list has no id.
struct BadElement {};

struct DeepNesting {
    std::size_t depth = 10'000;
};

/// If packed, only a few kilobytes are sent.
struct HugeBody {
    std::uint64_t bytes = 200'000'000;
    bool isPacked = false;
};

/// A location within the origin is a path.
struct Redirect {
    std::string location;
    int code = 302;
};

}  // namespace fault

using Fault = std::variant<fault::Status, fault::Delay, fault::Hang, fault::Drip, fault::Reset, fault::Truncation,
    fault::ClosedBeforeFirstByte, fault::NotHttp, fault::Body, fault::Garbage, fault::WrongShape, fault::BadElement,
    fault::DeepNesting, fault::HugeBody, fault::Redirect>;

/// Applies the fault to the result of an answer, before it becomes text.
void spoil(const Fault& fault, Json& result);

/// Applies the fault to a complete answer.
void spoil(const Fault& fault, Reply& reply);

}  // namespace larkspan::simulator
