#pragma once

#include <QList>

namespace larkspan::bridge {

/// Each of `things` as a `Value` for QML; for the few that a screen shows one by one. Lists have a model instead.
template <typename Value, typename Things>
QList<Value> valuesOf(const Things& things)
{
    QList<Value> values;
    values.reserve(static_cast<qsizetype>(things.size()));
    for (const auto& thing : things) values << Value::of(thing);
    return values;
}

}  // namespace larkspan::bridge
