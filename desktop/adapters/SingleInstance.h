#pragma once

#include <QDBusConnectionInterface>
#include <QObject>
#include <QString>

#include <chrono>

#include "adapters/ApplicationService.h"
#include "adapters/SessionBus.h"

namespace larkspan::adapters {

/// Keeps the program to one process per session: the one that owns its name on the session bus. Main thread only.
///
/// A second process hands its activation token to the first. A first one that does not answer within `patience`, or
/// not as this program does, loses the name if it lets go of it, and in any case the user gets a window; if it recovers
/// later, it is told by `replaced()` and quits. When the bus was lost, the first process takes its name again with the
/// new one; if another has it by then, as soon as that one ends.
class SingleInstance final : public QObject {
    Q_OBJECT

public:
    enum class Standing {
        first,
        /// Another process runs and has been activated: this one has nothing to do.
        second,
    };

    /// `name` is the program's name on the bus; the path of its object has the same parts. `bus` must outlive this
    /// object.
    SingleInstance(const SessionBus& bus, QString name, std::chrono::milliseconds patience = std::chrono::seconds(5),
        QObject* parent = nullptr);
    ~SingleInstance() override;

    /// Whether a second start shows the window of the first.
    enum class Raise { yes, no };

    /// Blocks for at most a few times `patience`; call it before anything is shown. Without a bus every process is the
    /// first.
    Standing claim(const QString& activationToken, Raise raise = Raise::yes);

    const QString& name() const { return name_; }

signals:
    /// Emitted when the program is started again, or its window is asked for.
    void activated(const QString& activationToken);

    /// Emitted when another process has taken over because this one did not answer it in time.
    void replaced();

private:
    using WhenTaken = QDBusConnectionInterface::ServiceQueueOptions;

    bool ownName(WhenTaken whenTaken);
    QString owner() const;
    bool activate(const QString& owner, const QString& activationToken);
    bool isThere(const QString& owner);
    Standing first();
    void watchForReplacement();
    void takeNameAgain();

    const SessionBus& bus_;
    const QString name_;
    const QString path_;
    std::chrono::milliseconds patience_;
    ApplicationService service_;
};

}  // namespace larkspan::adapters
