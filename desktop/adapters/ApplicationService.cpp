#include "adapters/ApplicationService.h"

namespace larkspan::adapters {

void ApplicationService::Activate(const QVariantMap& platformData)
{
    const auto token = platformData.value(activationTokenKey).toString();
    emit activated(token.isEmpty() ? platformData.value(startupIdKey).toString() : token);
}

void ApplicationService::Open(const QStringList& /*uris*/, const QVariantMap& platformData)
{
    Activate(platformData);
}

void ApplicationService::ActivateAction(
    const QString& actionName, const QVariantList& /*parameter*/, const QVariantMap& /*platformData*/)
{
    sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("There is no action \"%1\".").arg(actionName));
}

}  // namespace larkspan::adapters
