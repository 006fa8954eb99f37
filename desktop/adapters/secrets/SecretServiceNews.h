#pragma once

#include "adapters/secrets/GLibPointers.h"

namespace larkspan::adapters {

/// Notices the signals of the Secret Service that an item or a keyring was added, changed or removed. Constructed
/// inside an entry of the loop that receives them; reports a change at first, since earlier signals were missed.
class SecretServiceNews {
public:
    explicit SecretServiceNews(GDBusConnection* connection);
    ~SecretServiceNews();
    SecretServiceNews(const SecretServiceNews&) = delete;
    SecretServiceNews& operator=(const SecretServiceNews&) = delete;

    bool haveCome() const { return haveCome_; }
    void forget() { haveCome_ = false; }

private:
    ObjectPointer<GDBusConnection> connection_;
    guint subscription_;
    bool haveCome_ = true;
};

}  // namespace larkspan::adapters
