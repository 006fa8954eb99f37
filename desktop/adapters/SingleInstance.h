#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>

#include <chrono>

#include "adapters/ApplicationService.h"

namespace larkspan::adapters {

/// One running program per session, settled by who owns its name on the session bus. Main thread only.
///
/// A second start hands its activation token to the first. A first one that doesn't answer within `patience` loses
/// the name, so that the user gets a window all the same; should it wake up later, it is told by `replaced()` and
/// quits.
class SingleInstance final : public QObject {
    Q_OBJECT

public:
    enum class Standing {
        first,
        /// Another one runs and has been activated: this process has nothing to do.
        second,
    };

    /// `name` is what the program is called on the bus; its object stands at the path of the same parts.
    SingleInstance(QDBusConnection bus, QString name, std::chrono::milliseconds patience = std::chrono::seconds(5),
        QObject* parent = nullptr);
    ~SingleInstance() override;

    /// Blocks for at most a few times `patience`; call it before anything is shown. Without a bus everyone is first.
    Standing claim(const QString& activationToken);

signals:
    /// Somebody started the program again, or asked for its window.
    void activated(const QString& activationToken);

    /// Another start has taken over, because this process didn't answer it in time.
    void replaced();

private:
    bool ownName(bool replacing);
    QString owner() const;
    bool activate(const QString& owner, const QString& activationToken);
    void watchForReplacement();

    QDBusConnection bus_;
    const QString name_;
    const QString path_;
    std::chrono::milliseconds patience_;
    ApplicationService service_;
};

}  // namespace larkspan::adapters
