#pragma once

#include <QDBusConnection>
#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QThread>
#include <QTimer>

#include <chrono>
#include <memory>

namespace larkspan::adapters {

/// The pauses before the attempts to reach a lost bus again, each twice as long as the previous one.
struct BusPauses {
    std::chrono::milliseconds first = std::chrono::milliseconds(250);
    std::chrono::milliseconds longest = std::chrono::seconds(30);
};

/// The program's connection to the session bus. A lost one is made anew for as long as the program runs; where there
/// was no bus at the start, none is looked for later. Main thread only.
class SessionBus final : public QObject {
    Q_OBJECT

public:
    /// Connects to the bus at `address`, or to the session's if that is empty, and blocks until it answers.
    explicit SessionBus(QString address = {}, BusPauses pauses = {});
    ~SessionBus() override;

    /// The present connection, which is not connected while there is none.
    QDBusConnection connection() const { return connection_; }

signals:
    /// Emitted when the connection is lost and when there is a new one, which has none of the names, objects and
    /// subscriptions of the old one.
    void changed();

private slots:
    void noticeLoss();

private:
    void watch();
    void pause();
    void tryAgain();
    void take(const QDBusConnection& made);

    const QString address_;
    const BusPauses pauses_;
    std::chrono::milliseconds pause_;
    QTimer pausing_;
    QElapsedTimer sinceConnected_;
    bool isLost_ = false;
    std::unique_ptr<QThread> attempt_;
    QDBusConnection connection_;
};

}  // namespace larkspan::adapters
