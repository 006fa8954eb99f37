#pragma once

#include <QDBusPendingCall>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QHash>
#include <QObject>
#include <QVariant>

#include <vector>

#include "adapters/SessionBus.h"

namespace larkspan::adapters {

/// The appearance that the desktop asks of programs, read from its settings portal and kept up to date. If the portal
/// or a setting is missing, the palette decides between dark and light. Never waits for the portal. Main thread only.
class Appearance final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isDark READ isDark NOTIFY isDarkChanged)
    Q_PROPERTY(bool isHighContrast READ isHighContrast NOTIFY isHighContrastChanged)
    Q_PROPERTY(bool reducesMotion READ reducesMotion NOTIFY reducesMotionChanged)

public:
    /// `bus` must outlive this object.
    explicit Appearance(const SessionBus& bus, QObject* parent = nullptr);

    bool isDark() const { return isDark_; }
    bool isHighContrast() const { return isHighContrast_; }
    bool reducesMotion() const { return reducesMotion_; }

    /// Takes over what the portal has answered so far, without waiting for the event loop. Called just before the
    /// window is shown, so that users of a dark desktop see no white flash.
    void catchUp();

signals:
    void isDarkChanged();
    void isHighContrastChanged();
    void reducesMotionChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void onSettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    struct Question {
        QString setting;
        QDBusPendingCall answer;
    };

    void followPortal();
    void readAll();
    void take(const Question& question);
    void update();

    const SessionBus& bus_;
    QDBusServiceWatcher portal_;
    std::vector<Question> questions_;
    QHash<QString, QVariant> values_;
    bool isDark_ = false;
    bool isHighContrast_ = false;
    bool reducesMotion_ = false;
};

}  // namespace larkspan::adapters
