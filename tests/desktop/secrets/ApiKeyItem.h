#pragma once

#include <QStringList>

#include "platform/CredentialStore.h"

namespace larkspan::adapters {

inline constexpr platform::CredentialItem apiKey{.service = "KestruneAPIKeyService", .account = "KestruneAPIKey"};
/// The same as alternating names and values, as `secret-tool` takes them.
inline const QStringList apiKeyAttributes{"service", "KestruneAPIKeyService", "account", "KestruneAPIKey"};

}  // namespace larkspan::adapters
