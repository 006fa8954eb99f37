#pragma once

#include <QString>

namespace larkspan::adapters {

/// The path of the object of a program with this name on the bus: the same parts, as desktops expect it.
inline QString objectPath(const QString& name)
{
    return u'/' + QString(name).replace(u'.', u'/');
}

}  // namespace larkspan::adapters
