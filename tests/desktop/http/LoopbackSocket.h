#pragma once

namespace larkspan::adapters {

/// Returns a socket that listens on a free port of 127.0.0.1.
int listenOnLoopback();

int portOf(int listener);

/// Returns a socket that is connected to a port of 127.0.0.1; negative if nothing listens there.
int connectToLoopback(int port);

}  // namespace larkspan::adapters
