#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace larkspan::bridge {

/// The appearance that the desktop asks of programs; the theme follows its changes.
class AppearanceBridge : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool isDark MEMBER isDark_ NOTIFY isDarkChanged)
    Q_PROPERTY(bool hasHighContrast MEMBER hasHighContrast_ NOTIFY hasHighContrastChanged)
    Q_PROPERTY(bool reducesMotion MEMBER reducesMotion_ NOTIFY reducesMotionChanged)

public:
    using QObject::QObject;

signals:
    void isDarkChanged();
    void hasHighContrastChanged();
    void reducesMotionChanged();

private:
    bool isDark_ = false;
    bool hasHighContrast_ = false;
    bool reducesMotion_ = false;
};

}  // namespace larkspan::bridge
