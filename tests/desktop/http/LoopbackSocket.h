#pragma once

namespace larkspan::adapters {

/// A socket that listens on a free port of 127.0.0.1.
int listenOnLoopback();

int portOf(int listener);

/// A connection to a port of 127.0.0.1; negative if nothing listens there.
int connectToLoopback(int port);

}  // namespace larkspan::adapters
