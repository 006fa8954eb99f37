#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace larkspan::bridge {

/// Whether the user works with the keyboard now: whether a key was pressed last, in any window, sheet or menu. The
/// focus ring is shown only then.
class InputHand : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isKeyboard READ isKeyboard NOTIFY isKeyboardChanged)

public:
    explicit InputHand(QObject* parent = nullptr);

    bool isKeyboard() const { return isKeyboard_; }
    bool eventFilter(QObject* receiver, QEvent* event) override;

signals:
    void isKeyboardChanged();

private:
    void follow(bool isKeyboard);

    bool isKeyboard_ = false;
};

}  // namespace larkspan::bridge
