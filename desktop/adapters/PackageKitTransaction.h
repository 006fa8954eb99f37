#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QVariantList>

#include <chrono>

class QDBusPendingCall;

namespace larkspan::adapters {

/// One transaction of PackageKit, and what it reports about the package `larkspan`. Starts on construction; is
/// cancelled at its deadline and on destruction.
class PackageKitTransaction final : public QObject {
    Q_OBJECT

public:
    enum class End {
        succeeded,
        failed,
        /// This system has no PackageKit.
        noService,
    };
    Q_ENUM(End)

    struct Work {
        QString method;
        QVariantList arguments;
    };

    PackageKitTransaction(
        QDBusConnection systemBus, Work work, std::chrono::milliseconds deadline, QObject* parent = nullptr);
    ~PackageKitTransaction() override;

    /// The versions of the package; empty if PackageKit has not named them.
    QString installedVersion() const { return installedVersion_; }
    QString availableVersion() const { return availableVersion_; }

signals:
    /// Emitted once, never from the constructor, as the last thing that this object does.
    void ended(End end);

private slots:
    void onPackage(uint info, const QString& packageId, const QString& summary);
    void onErrorCode(uint code, const QString& details);
    void onFinished(uint exit, uint runtime);
    void onDestroy();

private:
    void onCreated(const QDBusPendingCall& answer);
    void onOwnerKnown(const QString& owner, const QString& path);
    void listen();
    void startWork();
    QDBusPendingCall callTransaction(const QString& method, const QVariantList& arguments);
    void giveUp();
    void cancel();
    void end(End end);

    QDBusConnection bus_;
    Work work_;
    int deadline_;
    /// The unique name of the process that runs the transaction: a successor would not know it.
    QString owner_;
    QString path_;
    QString installedVersion_;
    QString availableVersion_;
    bool hasEnded_ = false;
};

}  // namespace larkspan::adapters
