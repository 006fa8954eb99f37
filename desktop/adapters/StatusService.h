#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QString>

#include <chrono>
#include <functional>
#include <optional>

#include "adapters/SessionBus.h"
#include "platform/StatusReport.h"

namespace larkspan::adapters {

/// Tells the status to other processes of the session, over its bus. Main thread only.
class StatusService final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.kestrune.larkspan.Status")

public:
    using Report = std::function<std::optional<platform::StatusReport>()>;

    /// `name` is the program's name on the bus; `report` is asked for each call, and empty if nothing is known yet.
    /// `bus` must outlive this object.
    StatusService(const SessionBus& bus, const QString& name, Report report);
    ~StatusService() override;

    /// What the running program that owns `name` says; empty if none runs, if it knows nothing yet, or if it does not
    /// answer within `patience`, for which this blocks.
    static std::optional<platform::StatusReport> ask(
        QDBusConnection bus, const QString& name, std::chrono::milliseconds patience = std::chrono::seconds(3));

public slots:
    /// Returns the exit code, and the texts of the report.
    Q_SCRIPTABLE int Read(QString& text, QString& json, QString& problem);

private:
    void offer();

    const SessionBus& bus_;
    const QString path_;
    Report report_;
};

}  // namespace larkspan::adapters
