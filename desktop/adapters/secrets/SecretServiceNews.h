#pragma once

#include "adapters/secrets/GLibPointers.h"

namespace larkspan::adapters {

/// Whether the Secret Service has said of its own accord that an item or a keyring came, changed or went. Made inside
/// of an entry of the loop that is to hear of it; what it said before that was not heard, so at first there are news.
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
