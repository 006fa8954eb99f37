#include "stage/Origin.h"

#include <poll.h>
#include <unistd.h>

#include "LoopbackSocket.h"
#include "stage/Authorities.h"

namespace larkspan::campaign {

namespace {

std::string urlOf(const std::string& scheme, int port)
{
    return scheme + "://127.0.0.1:" + std::to_string(port);
}

}  // namespace

OtherOrigins::OtherOrigins()
    : server_(identity(),
          [](adapters::Conversation& peer, const adapters::ReceivedRequest&) { peer.answer("200 OK", "{}"); })
    , plainListener_(adapters::listenOnLoopback())
    , secureURL_(urlOf("https", server_.port()))
    , plainURL_(urlOf("http", adapters::portOf(plainListener_)))
{
}

OtherOrigins::~OtherOrigins()
{
    ::close(plainListener_);
}

int OtherOrigins::visits() const
{
    pollfd waiting{plainListener_, POLLIN, 0};
    return server_.connections() + ::poll(&waiting, 1, 0);
}

}  // namespace larkspan::campaign
