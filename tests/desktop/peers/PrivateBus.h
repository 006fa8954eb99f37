#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace larkspan::peers {

/// A message bus of a test's own, on which nothing runs or is started unasked. Ends with the object.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();

    QString address() const { return address_; }

    /// A new connection to the bus.
    QDBusConnection connect() const;

    /// Waits until somebody owns `name`; false if nobody does in time.
    bool awaitOwner(const QString& name) const;

    /// Ends the bus before its time.
    void stop();

private:
    QTemporaryDir directory_;
    QProcess daemon_;
    QString address_;
};

}  // namespace larkspan::peers
