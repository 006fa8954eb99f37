#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>

#include "peers/Peer.h"
#include "peers/PrivateBus.h"

namespace larkspan::peers {

/// A desktop's panel in its own process: the list of items, and what a user and a host do with the newest one. Bytes
/// are hexadecimal text. Ends with the object.
class TrayHost {
public:
    /// Without a host there is only the list, which nobody shows.
    explicit TrayHost(const PrivateBus& bus, bool hasHost = true);

    /// Waits for an item; returns false if none is registered within `patience`.
    bool seesItem(std::chrono::milliseconds patience = std::chrono::seconds(10));
    int registrations();
    /// The bus name of the newest item.
    QString itemName();
    void setHasHost(bool hasHost);

    QJsonObject item();

    /// Each item of the menu: its id, its properties, its children.
    QJsonArray rows();
    uint revision();

    /// The signals of the item and its menu since the last call, each with its arguments.
    QJsonArray takeSignals();
    QStringList takeSignalNames();

    QJsonValue callItem(const QString& method, const QString& signature, const QJsonArray& arguments);
    QJsonValue callMenu(const QString& method, const QString& signature, const QJsonArray& arguments);
    void click(int id);

    /// Sends a signal to it; after `SIGSTOP` it answers nothing until `SIGCONT`.
    void signal(int number) { process_.signal(number); }

private:
    QJsonValue ask(const QJsonArray& command);

    Peer process_;
};

}  // namespace larkspan::peers
