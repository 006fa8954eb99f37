#pragma once

#include <set>

namespace larkspan::adapters {

/// The sockets of the connections that libcurl keeps, which it does not give away itself. Loop's thread only.
class KeptSockets {
public:
    void add(int socket) { sockets_.insert(socket); }

    /// Whether something has come on the connection from this local port that nobody has read, be it its end.
    bool hasSomethingUnread(int localPort);

private:
    // Some may be closed by now, or be other files.
    std::set<int> sockets_;
};

}  // namespace larkspan::adapters
