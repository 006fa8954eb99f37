#include "server/ReplyDelivery.h"

#include <boost/beast/http/empty_body.hpp>
#include <boost/beast/http/message.hpp>
#include <boost/beast/http/write.hpp>

#include <algorithm>
#include <sstream>

#include "server/Packing.h"

namespace larkspan::simulator {

namespace {

namespace http = boost::beast::http;
using Ending = Delivery::Ending;

void pack(Reply& reply)
{
    reply.body = packed(reply.body, reply.padding);
    reply.padding = 0;
    reply.headers.emplace_back("Content-Encoding", "gzip");
}

std::string headOf(const Reply& reply)
{
    http::response<http::empty_body> head;
    head.result(static_cast<unsigned>(reply.status));
    head.set(http::field::content_type, reply.contentType);
    for (const auto& [name, value] : reply.headers) head.set(name, value);
    if (reply.delivery.hidesLength)
        head.set(http::field::connection, "close");
    else
        head.set(http::field::content_length, std::to_string(reply.bodySize()));
    std::ostringstream text;
    text << head.base();
    return std::move(text).str();
}

/// Sends a body in pieces, up to the place where its delivery cuts it.
class BodyDelivery {
public:
    BodyDelivery(const Delivery& delivery, Connection& connection)
        : delivery_(delivery)
        , connection_(connection)
    {
    }

    /// Returns false if no more of the body is to be sent.
    bool send(std::string_view bytes)
    {
        while (!bytes.empty()) {
            const bool isDripDue = hasDrip() && sent_ > 0 && sent_ % delivery_.dripBytes == 0;
            if (isDripDue && !connection_.pause(delivery_.dripPause)) return false;
            const auto piece = bytes.substr(0, longestPiece());
            if (piece.empty() || !connection_.write(piece)) return false;
            sent_ += piece.size();
            bytes.remove_prefix(piece.size());
        }
        return true;
    }

private:
    bool hasDrip() const { return delivery_.dripPause.count() > 0; }

    std::uint64_t longestPiece() const
    {
        std::uint64_t longest = std::string_view::npos;
        if (hasDrip()) longest = delivery_.dripBytes - sent_ % delivery_.dripBytes;
        if (delivery_.ending != Ending::whole) longest = std::min(longest, delivery_.bodyBytes - sent_);
        return longest;
    }

    const Delivery& delivery_;
    Connection& connection_;
    std::uint64_t sent_ = 0;
};

bool sendBody(const Reply& reply, Connection& connection)
{
    static const std::string blanks(65'536, ' ');
    BodyDelivery body(reply.delivery, connection);
    if (!body.send(reply.body)) return false;
    for (auto left = reply.padding; left > 0;) {
        const auto piece = std::string_view(blanks).substr(0, left);
        if (!body.send(piece)) return false;
        left -= piece.size();
    }
    return reply.delivery.ending == Ending::whole;
}

bool sendAnswer(const Reply& reply, Connection& connection)
{
    if (!connection.pause(reply.delivery.delay)) return false;
    switch (reply.delivery.ending) {
    case Ending::closedBeforeFirstByte: return false;
    case Ending::hanging:
        while (connection.pause(std::chrono::hours(1))) {}
        return false;
    case Ending::notHttp: connection.write("220 mail.example ESMTP\r\n"); return false;
    case Ending::whole:
    case Ending::truncated:
    case Ending::reset: break;
    }
    return connection.write(headOf(reply)) && sendBody(reply, connection);
}

}  // namespace

bool deliver(Reply reply, const Request& request, Connection& connection)
{
    if (reply.isPacked && request.header("Accept-Encoding").value_or("").find("gzip") != std::string_view::npos)
        pack(reply);
    if (!sendAnswer(reply, connection)) {
        if (reply.delivery.ending == Ending::reset)
            connection.endByReset();
        else
            connection.endAbruptly();
        return false;
    }
    return !reply.delivery.hidesLength;
}

}  // namespace larkspan::simulator
