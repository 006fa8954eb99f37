#include "stage/Fault.h"

namespace larkspan::campaign {

namespace {

constexpr std::string_view moved = "/moved";

}  // namespace

std::string Turn::target() const
{
    const auto start = received.line.find(' ') + 1;
    auto text = received.line.substr(start, received.line.find(' ', start) - start);
    return text.starts_with(moved) ? text.substr(moved.size()) : text;
}

bool Turn::isMoved() const
{
    return received.line.find(' ' + std::string(moved) + '/') != std::string::npos;
}

std::string movedTo(const std::string& target)
{
    return std::string(moved) + target;
}

std::string written(const simulator::Reply& reply, const std::string& moreHeaders)
{
    return "HTTP/1.1 " + std::to_string(reply.status) + " As It Is\r\nContent-Type: " + reply.contentType
        + "\r\nContent-Length: " + std::to_string(reply.body.size()) + "\r\n" + moreHeaders + "\r\n" + reply.body;
}

std::string bodyOf(const simulator::Reply& reply)
{
    return reply.body.empty() ? R"({"success":true})" : reply.body;
}

const std::vector<Fault>& faults()
{
    static const auto all = [] {
        std::vector<Fault> every;
        for (const auto kind : {connectionFaults, lengthFaults, headFaults, statusFaults, redirectFaults,
                 pointingFaults, bodyFaults, certificateFaults, simulatedFaults}) {
            const auto some = kind();
            every.insert(every.end(), some.begin(), some.end());
        }
        return every;
    }();
    return all;
}

}  // namespace larkspan::campaign
