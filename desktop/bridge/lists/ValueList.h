#pragma once

#include <QList>

namespace larkspan::bridge {

/// Each of `things` as a `Value` for QML; for the few that stand on a screen one by one, while a list has a model.
template <typename Value, typename Things>
QList<Value> valuesOf(const Things& things)
{
    QList<Value> values;
    values.reserve(static_cast<qsizetype>(things.size()));
    for (const auto& thing : things) values << Value::of(thing);
    return values;
}

}  // namespace larkspan::bridge
