#pragma once

#include <QString>

#include "platform/NotificationCenter.h"

namespace larkspan::adapters {

/// How a notification server treats markup in a body.
enum class BodyMarkup { unknown, literal, interpreted };

/// The texts of a notice, safe for the bus and the screen whatever the service sent: valid, of bounded length, without
/// control characters, and on one line except for the body.
struct NotificationText {
    explicit NotificationText(const platform::NotificationRequest& request);

    /// Subtitle and body as one text, which a server with such `markup` shows literally.
    QString laidOut(BodyMarkup markup) const;

    QString title;
    QString subtitle;
    QString body;
    QString type;
    QString id;
};

}  // namespace larkspan::adapters
