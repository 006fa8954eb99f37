#pragma once

#include <QString>

#include <ostream>

/// Makes failed tests print readable texts; found by its name, in Qt's namespace.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}
