#pragma once

#include <QFont>
#include <QGuiApplication>

namespace larkspan {

/// The program with another font size, which the desktop sets before the program starts.
class ChosenSize {
public:
    explicit ChosenSize(double points)
    {
        QFont font = before_;
        font.setPointSizeF(points);
        QGuiApplication::setFont(font);
    }
    virtual ~ChosenSize() { QGuiApplication::setFont(before_); }

    ChosenSize(const ChosenSize&) = delete;
    ChosenSize& operator=(const ChosenSize&) = delete;

private:
    QFont before_ = QGuiApplication::font();
};

/// The program in large letters.
struct LargeLetters : ChosenSize {
    LargeLetters()
        : ChosenSize(20)
    {
    }
};

}  // namespace larkspan
