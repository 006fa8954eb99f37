#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QVariantMap>

#include <memory>

#include "peers/Peer.h"
#include "peers/PrivateBus.h"

namespace larkspan::peers {

/// The real gnome-keyring on a private bus, with its own home directory. Ends with the object.
class Keyring {
public:
    static constexpr auto password = "correct horse";

    enum class Start { withAnUnlockedDefaultKeyring, withoutAnyKeyring };

    explicit Keyring(const PrivateBus& bus, Start start = Start::withAnUnlockedDefaultKeyring);

    void lock() const;

    /// Unlocks without a prompt, as a login does.
    void unlock() const;

    /// Stores a secret with `secret-tool`, which takes attributes as alternating names and values.
    void store(const QStringList& attributes, const QByteArray& secret) const;

    /// Removes the unlocked items that have these attributes with `secret-tool`.
    void clear(const QStringList& attributes) const;

    /// Stores a secret in a second keyring with the same password, and locks it.
    void storeInALockedKeyring(const QStringList& attributes, const QString& secret) const;

    /// The output of `secret-tool lookup`.
    QByteArray lookUp(const QStringList& attributes) const;

    /// The number of items with this service, locked or not.
    qsizetype count(const QString& service) const;

    /// The attributes of the only item with this service.
    QVariantMap attributes(const QString& service) const;

    void signal(int number) { daemon_->signal(number); }

    /// Starts the daemon again after its end.
    void start(Start start = Start::withAnUnlockedDefaultKeyring);
    void end() { daemon_.reset(); }

private:
    QProcessEnvironment environment() const;
    QStringList items(const QString& service) const;

    const PrivateBus& bus_;
    QTemporaryDir home_;
    std::unique_ptr<Peer> daemon_;
};

}  // namespace larkspan::peers
