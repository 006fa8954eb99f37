#pragma once

#include <QJsonArray>
#include <QJsonObject>

#include "peers/Peer.h"
#include "peers/PrivateBus.h"

namespace larkspan::peers {

/// A notification server with these capabilities and ways (see notification_server.py), ready.
class NotificationServer : public Peer {
public:
    explicit NotificationServer(const PrivateBus& bus, const QStringList& capabilitiesAndWays = {});

    /// The next notice that it is handed; empty if none comes in time.
    QJsonObject notice();

    /// What it has been asked and handed by now and nobody heard, in short: "asked" or a notice's summary.
    QStringList soFar();

    /// The user closes the notice that the server knows by this id.
    void close(int notice);

    /// It answers from now on.
    void open() { tell("open\n"); }
};

/// The environment of programs on `bus`.
QProcessEnvironment onBus(const PrivateBus& bus);

}  // namespace larkspan::peers
