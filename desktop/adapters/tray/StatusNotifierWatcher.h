#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QVariantList>

#include <memory>

class QDBusPendingCallWatcher;

namespace larkspan::adapters {

/// The desktop's list of items, `org.kde.StatusNotifierWatcher`, which may come, go and return at any time. Never
/// waits for it and never has it started. Main thread only.
class StatusNotifierWatcher final : public QObject {
    Q_OBJECT

public:
    explicit StatusNotifierWatcher(QDBusConnection bus, QObject* parent = nullptr);
    ~StatusNotifierWatcher() override;

    /// Puts the item of this connection on the list, now and whenever the list is a new one.
    void registerItem();

    /// True while somebody shows the items of the list.
    bool hasHost() const { return hasHost_; }

signals:
    void hasHostChanged();

private slots:
    void askForHost();

private:
    void setOwner(const QString& owner);
    QDBusMessage call(const char* interface, const char* method, const QVariantList& arguments) const;
    void sendRegistration();
    void setHasHost(bool hasHost);

    QDBusConnection bus_;
    std::unique_ptr<QDBusPendingCallWatcher> answer_;
    /// The bus name of the process that has the list; empty while none has.
    QString owner_;
    bool hasItem_ = false;
    bool hasHost_ = false;
};

}  // namespace larkspan::adapters
