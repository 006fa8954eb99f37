#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <array>
#include <memory>

namespace larkspan::adapters {

/// Turns SIGTERM, SIGINT and SIGHUP into `requested()` on the main thread. A second signal of the same kind ends the
/// process at once, so that a hanging program can still be stopped. One instance, constructed on the main thread.
class TerminationSignals final : public QObject {
    Q_OBJECT

public:
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

signals:
    void requested();

private:
    void drain();

    std::array<int, 2> pipe_{-1, -1};
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace larkspan::adapters
