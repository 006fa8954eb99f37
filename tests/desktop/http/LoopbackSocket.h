#pragma once

namespace larkspan::adapters {

/// Returns a socket that listens on a port of 127.0.0.1, by default any free one.
int listenOnLoopback(int port = 0);

int portOf(int listener);

/// Returns a socket that is connected to a port of 127.0.0.1; negative if nothing listens there.
int connectToLoopback(int port);

}  // namespace larkspan::adapters
