#pragma once

#include "adapters/secrets/GLibPointers.h"

namespace larkspan::adapters {

/// Notices the signals of the Secret Service that an item or a keyring was added, changed or removed. Constructed
/// inside an entry of the loop that receives them; reports a change at first, since earlier signals were missed.
class SecretServiceChanges {
public:
    explicit SecretServiceChanges(GDBusConnection* connection);
    ~SecretServiceChanges();
    SecretServiceChanges(const SecretServiceChanges&) = delete;
    SecretServiceChanges& operator=(const SecretServiceChanges&) = delete;

    bool haveHappened() const { return haveHappened_; }
    void forget() { haveHappened_ = false; }

private:
    ObjectPointer<GDBusConnection> connection_;
    guint subscription_;
    bool haveHappened_ = true;
};

}  // namespace larkspan::adapters
