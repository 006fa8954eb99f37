#pragma once

#include <QDBusContext>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace larkspan::adapters {

/// What another start of the program finds on the session bus. Main thread only.
class ApplicationService final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    using QObject::QObject;

    /// The key under which `platformData` holds the activation token; callers of before 2021 use the second.
    static constexpr auto activationTokenKey = "activation-token";
    static constexpr auto startupIdKey = "desktop-startup-id";

public slots:
    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
    /// The program opens no files: whoever hands it some sees its window.
    Q_SCRIPTABLE void Open(const QStringList& uris, const QVariantMap& platformData);
    /// The program offers no actions, so any name is refused.
    Q_SCRIPTABLE void ActivateAction(
        const QString& actionName, const QVariantList& parameter, const QVariantMap& platformData);

signals:
    void activated(const QString& activationToken);
};

}  // namespace larkspan::adapters
