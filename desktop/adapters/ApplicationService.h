#pragma once

#include <QDBusContext>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace larkspan::adapters {

/// The object on the session bus that a second start of the program calls. Main thread only.
class ApplicationService final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    using QObject::QObject;

    /// The keys of the activation token in `platformData`; callers from before 2021 use the second one.
    static constexpr auto activationTokenKey = "activation-token";
    static constexpr auto startupIdKey = "desktop-startup-id";

public slots:
    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
    /// The program opens no files: this only shows its window.
    Q_SCRIPTABLE void Open(const QStringList& uris, const QVariantMap& platformData);
    /// The program offers no actions, so every name is refused.
    Q_SCRIPTABLE void ActivateAction(
        const QString& actionName, const QVariantList& parameter, const QVariantMap& platformData);

signals:
    void activated(const QString& activationToken);
};

}  // namespace larkspan::adapters
