#pragma once

#include <QFont>
#include <QGuiApplication>

namespace larkspan {

/// A desktop with letters of 20 points, set before the program starts; a base of the test before its screen.
class LargeLetters {
protected:
    LargeLetters()
    {
        QFont font = before_;
        font.setPointSizeF(20);
        QGuiApplication::setFont(font);
    }
    ~LargeLetters() { QGuiApplication::setFont(before_); }

private:
    QFont before_ = QGuiApplication::font();
};

}  // namespace larkspan
