#pragma once

#include <QString>

#include <ostream>

/// So that a failed test shows words; found by its name, in Qt's own namespace.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}
