#pragma once

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QHash>
#include <QObject>
#include <QVariant>

#include <vector>

namespace larkspan::adapters {

/// How the desktop wants programs to look, read from its settings portal and followed live. Where the portal or a
/// setting of it is missing, dark or light is the palette's. Never waits for the portal. Main thread only.
class Appearance final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isDark READ isDark NOTIFY isDarkChanged)
    Q_PROPERTY(bool isHighContrast READ isHighContrast NOTIFY isHighContrastChanged)
    Q_PROPERTY(bool reducesMotion READ reducesMotion NOTIFY reducesMotionChanged)

public:
    explicit Appearance(QDBusConnection bus, QObject* parent = nullptr);

    bool isDark() const { return isDark_; }
    bool isHighContrast() const { return isHighContrast_; }
    bool reducesMotion() const { return reducesMotion_; }

    /// Takes what the portal has answered by now, ahead of the event loop: called just before the window is shown, it
    /// spares the user of a dark desktop a flash of white.
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

    void readAll();
    void take(const Question& question);
    void update();

    QDBusConnection bus_;
    std::vector<Question> questions_;
    QHash<QString, QVariant> values_;
    bool isDark_ = false;
    bool isHighContrast_ = false;
    bool reducesMotion_ = false;
};

}  // namespace larkspan::adapters
