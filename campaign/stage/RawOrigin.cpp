#include <algorithm>
#include <atomic>
#include <map>

#include "stage/Authorities.h"
#include "stage/Client.h"
#include "stage/Origin.h"

namespace larkspan::campaign {

namespace {

using adapters::Conversation;
using adapters::FaultServer;
using adapters::ReceivedRequest;

simulator::Request requestOf(const Turn& turn)
{
    const auto& received = turn.received;
    simulator::Request request;
    request.method = received.line.substr(0, received.line.find(' '));
    request.target = turn.target();
    request.body = received.body;
    for (const auto& header : received.headers) {
        const auto colon = header.find(": ");
        if (colon != std::string::npos) request.headers.emplace_back(header.substr(0, colon), header.substr(colon + 2));
    }
    return request;
}

/// Whether the header is one of the two that carry the key, with nothing else in it.
bool carriesKey(const std::string& header)
{
    return header == "Authorization: Bearer " + key || header == "X-API-Key: " + key;
}

class RawOrigin final : public Origin {
public:
    RawOrigin(simulator::Service& service, const OtherOrigins& others, const Fault& fault)
        : service_(service)
        , others_(others)
        , fault_(fault)
        , server_(identity(), [this](Conversation& peer, const ReceivedRequest& received) { answer(peer, received); })
    {
    }

    int port() const override { return server_.port(); }

    void arm(Met met) override
    {
        met_ = met;
        isArmed_ = true;
        if (fault_.begin) fault_.begin(server_);
    }

    void mend() override
    {
        isArmed_ = false;
        if (fault_.end) fault_.end(server_);
    }

    std::vector<std::string> textsWithoutKey() const override
    {
        std::vector<std::string> texts;
        for (const auto& request : server_.requests()) {
            texts.insert(texts.end(), {request.line, request.body});
            std::ranges::remove_copy_if(request.headers, std::back_inserter(texts), carriesKey);
        }
        return texts;
    }

    int mostArrivals() const override
    {
        std::map<std::string, int> arrivals;
        for (const auto& request : server_.requests()) {
            if (!request.line.starts_with("GET ")) ++arrivals[request.line];
        }
        int most = 0;
        for (const auto& [line, times] : arrivals) most = std::max(most, times);
        return most;
    }

private:
    void answer(Conversation& peer, const ReceivedRequest& received)
    {
        const auto here = server_.url("");
        Turn turn{peer, received, {}, others_.secure(), others_.plain(), here};
        turn.answer = [this, &turn] { return service_.answer(requestOf(turn)); };
        if (isMet(turn))
            fault_.answer(turn);
        else
            peer.write(written(turn.answer()));
    }

    bool meets(const Turn& turn) const { return turn.isMoved() || turn.isWrite() == (met_ == Met::writes); }

    bool isMet(const Turn& turn)
    {
        if (!isArmed_ || !fault_.answer || !meets(turn)) return false;
        if (fault_.isOnce) isArmed_ = false;
        return true;
    }

    simulator::Service& service_;
    const OtherOrigins& others_;
    const Fault& fault_;
    std::atomic<bool> isArmed_{false};
    std::atomic<Met> met_{Met::reads};
    FaultServer server_;
};

}  // namespace

std::unique_ptr<Origin> rawOrigin(simulator::Service& service, const OtherOrigins& others, const Fault& fault)
{
    return std::make_unique<RawOrigin>(service, others, fault);
}

}  // namespace larkspan::campaign
