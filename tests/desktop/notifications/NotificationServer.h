#pragma once

#include <QJsonArray>
#include <QJsonObject>

#include "peers/Peer.h"
#include "peers/PrivateBus.h"

namespace larkspan::peers {

/// A notification server with these capabilities and options (see notification_server.py), ready for use.
class NotificationServer : public Peer {
public:
    explicit NotificationServer(const PrivateBus& bus, const QStringList& capabilitiesAndWays = {});

    /// The next notice that it receives; empty if none comes in time.
    QJsonObject notice();

    /// What it has been asked and given so far and was not read yet, in short: "asked" or a notice's summary.
    QStringList soFar();

    /// Closes the notice with this id of the server, as the user.
    void close(int notice);

    /// Lets it answer from now on.
    void open() { tell("open\n"); }
};

/// The environment of programs on `bus`.
QProcessEnvironment onBus(const PrivateBus& bus);

}  // namespace larkspan::peers
