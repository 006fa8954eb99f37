#include "service/Fault.h"

#include <algorithm>

#include "json/Json.h"

namespace larkspan::simulator {

namespace {

/// The list of a result: the result itself, or the first list in an envelope.
Json* listWithin(Json& result)
{
    if (result.is_array()) return &result;
    const auto list = std::ranges::find_if(result, [](const Json& value) { return value.is_array(); });
    return list != result.end() ? &*list : nullptr;
}

struct SpoilResult {
    Json& result;

    void operator()(const fault::WrongShape&) const
    {
        if (result.is_array()) {
            result = Json::object({{"items", std::move(result)}});
        } else {
            result = Json::array({std::move(result)});
        }
    }

    void operator()(const fault::BadElement&) const
    {
        auto* list = listWithin(result);
        if (!list || list->empty()) return;
        auto& element = (*list)[list->size() / 2];
        if (element.is_object()) element.erase("id");
    }

    template <typename Other>
    void operator()(const Other&) const
    {
    }
};

struct SpoilReply {
    Reply& reply;

    void operator()(const fault::Status& status) const
    {
        reply.status = status.code;
        const bool mayHaveBody = status.code != 204 && status.code != 304;
        reply.body = mayHaveBody ? textOf(Json::object({{"error", "Something went wrong"}})) : std::string();
    }

    void operator()(const fault::Delay& delay) const { reply.delivery.delay += delay.time; }
    void operator()(const fault::Hang&) const { reply.delivery.ending = Delivery::Ending::hanging; }

    void operator()(const fault::Drip& drip) const
    {
        reply.delivery.dripBytes = std::max<std::uint64_t>(drip.bytes, 1);
        reply.delivery.dripPause = drip.pause;
    }

    void operator()(const fault::Reset& reset) const { cut(Delivery::Ending::reset, reset.afterBodyBytes); }
    void operator()(const fault::Truncation& truncation) const
    {
        reply.delivery.hidesLength = truncation.hidesLength;
        cut(Delivery::Ending::truncated, truncation.afterBodyBytes);
    }

    void operator()(const fault::ClosedBeforeFirstByte&) const
    {
        reply.delivery.ending = Delivery::Ending::closedBeforeFirstByte;
    }
    void operator()(const fault::NotHttp&) const { reply.delivery.ending = Delivery::Ending::notHttp; }

    void operator()(const fault::Body& body) const
    {
        reply.body = body.text;
        reply.contentType = body.contentType;
    }

    void operator()(const fault::Garbage&) const
    {
        reply.body = "<html><body>It works!\xff\xfe</body>";
        reply.contentType = "text/html";
    }

    void operator()(const fault::DeepNesting& nesting) const
    {
        reply.body = "{\"data\":" + std::string(nesting.depth, '[') + std::string(nesting.depth, ']') + "}";
    }

    void operator()(const fault::HugeBody& huge) const
    {
        reply.body = "{\"data\":[";
        reply.padding = huge.bytes - std::min<std::uint64_t>(huge.bytes, reply.body.size());
        reply.isPacked = huge.isPacked;
    }

    void operator()(const fault::Redirect& redirect) const
    {
        reply.status = redirect.code;
        reply.headers.emplace_back("Location", redirect.location);
        reply.body.clear();
    }

    template <typename Other>
    void operator()(const Other&) const
    {
    }

    void cut(Delivery::Ending ending, std::optional<std::uint64_t> afterBodyBytes) const
    {
        reply.delivery.ending = ending;
        reply.delivery.bodyBytes = afterBodyBytes.value_or(reply.bodySize() / 2);
    }
};

}  // namespace

void spoil(const Fault& fault, Json& result)
{
    std::visit(SpoilResult{result}, fault);
}

void spoil(const Fault& fault, Reply& reply)
{
    std::visit(SpoilReply{reply}, fault);
}

}  // namespace larkspan::simulator
