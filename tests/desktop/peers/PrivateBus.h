#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace larkspan::peers {

/// A private message bus, on which nothing runs or is started unless a test asks for it. Ends with the object.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();

    QString address() const { return address_; }

    /// A new connection to the bus.
    QDBusConnection connect() const;

    /// Waits until `name` has an owner; returns false if it has none in time.
    bool awaitOwner(const QString& name) const;

    /// Ends the bus early.
    void stop();

    /// Starts another bus in the place of one that has ended.
    void start();

private:
    QTemporaryDir directory_;
    QString address_;
    QProcess daemon_;
};

}  // namespace larkspan::peers
