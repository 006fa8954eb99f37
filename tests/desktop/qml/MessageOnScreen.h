#pragma once

#include <QQuickItem>

#include <string>
#include <vector>

#include "IncidentsOnScreen.h"

namespace larkspan {

/// An opened incident with the test's own message.
class MessageOnScreen : public IncidentsOnScreen {
protected:
    /// `message` is the text between the quotes of a JSON string.
    void open(const std::string& message)
    {
        serve({incident("1", "Login errors", R"(, "message": ")" + message + '"')});
        press(Qt::Key_F5);
        openFirst();
    }

    QQuickItem& rows() const { return item(Role::List, QStringLiteral("Description")); }

    /// The visible lines of the message's tables, from top to bottom.
    std::vector<QQuickItem*> tableLines() const
    {
        std::vector<QQuickItem*> lines;
        visit([&lines](QQuickItem& each) {
            if (each.isVisible() && each.property("offsets").isValid() && each.property("contentX").isValid())
                lines.push_back(&each);
        });
        return lines;
    }

    QQuickItem& words(const char* text) const { return item(Role::StaticText, QString::fromUtf8(text)); }
};

}  // namespace larkspan
