#include "inprocess/Arrival.h"

#include <algorithm>
#include <utility>

namespace larkspan::simulator {

namespace {

using namespace std::chrono_literals;
using Code = platform::URLError::Code;
using Ending = Delivery::Ending;

constexpr std::chrono::milliseconds patience = 30s;
constexpr std::uint64_t largestBody = 64 * 1'024 * 1'024;

/// How much of the body the client takes before the exchange ends or the limit is passed.
std::uint64_t bodyBytesTaken(const Reply& reply)
{
    const auto sent = reply.delivery.ending == Ending::whole ? reply.bodySize()
                                                             : std::min(reply.delivery.bodyBytes, reply.bodySize());
    return std::min(sent, largestBody + 1);
}

bool sendsBody(Ending ending)
{
    return ending == Ending::whole || ending == Ending::truncated || ending == Ending::reset;
}

platform::HttpTransport::Result outcome(Reply& reply)
{
    switch (reply.delivery.ending) {
    case Ending::notHttp: return Code::badServerResponse;
    case Ending::closedBeforeFirstByte: return Code::networkConnectionLost;
    case Ending::truncated:
    case Ending::reset:
        return bodyBytesTaken(reply) > largestBody ? Code::dataLengthExceedsMaximum : Code::networkConnectionLost;
    case Ending::hanging: return Code::timedOut;
    case Ending::whole: break;
    }
    if (reply.bodySize() > largestBody) return Code::dataLengthExceedsMaximum;
    reply.body.append(reply.padding, ' ');
    return platform::HttpResponse{reply.status, std::move(reply.body)};
}

}  // namespace

Arrival arrival(Reply reply, std::chrono::milliseconds timeout)
{
    const auto& delivery = reply.delivery;
    if (delivery.ending == Ending::hanging || delivery.delay > patience)
        return {std::min(patience, timeout), Code::timedOut};

    auto after = delivery.delay;
    if (sendsBody(delivery.ending) && delivery.dripPause > 0ms) {
        if (delivery.dripPause > patience) return {std::min(delivery.delay + patience, timeout), Code::timedOut};
        // A pause follows each drop but the last; after the timeout their number no longer matters.
        const auto drops = bodyBytesTaken(reply) / delivery.dripBytes;
        after += delivery.dripPause * std::min<std::uint64_t>(drops, static_cast<std::uint64_t>(timeout.count()));
    }
    if (after > timeout) return {timeout, Code::timedOut};
    return {after, outcome(reply)};
}

}  // namespace larkspan::simulator
