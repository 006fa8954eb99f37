#pragma once

#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "model/json/WireTable.h"
#include "support/Time.h"

namespace larkspan::model {

/// Writes one JSON object, key by key.
class JSONObjectWriter {
public:
    void write(std::string_view keyName, const std::string& value);
    void write(std::string_view keyName, bool value);
    void write(std::string_view keyName, int value);
    void write(std::string_view keyName, support::Time value);
    /// `objects` are texts of other finished writers.
    void writeObjects(std::string_view keyName, const std::vector<std::string>& objects);

    /// Returns the object; nothing can be written afterwards.
    std::string finish() &&;

private:
    void writeKey(std::string_view keyName);

    std::string text_ = "{";
};

template <typename Record, typename Field>
void write(const RequiredRow<Record, Field>& row, const Record& record, JSONObjectWriter& writer)
{
    writer.write(row.key, record.*row.field);
}

template <typename Record, typename Field>
void write(const OptionalRow<Record, Field>& row, const Record& record, JSONObjectWriter& writer)
{
    if (const auto& value = record.*row.field) writer.write(row.key, *value);
}

template <typename Record, typename Field, typename Value>
void write(const DefaultedRow<Record, Field, Value>& row, const Record& record, JSONObjectWriter& writer)
{
    writer.write(row.key, record.*row.field);
}

/// `record` as a JSON object, by its wire fields.
template <typename Record>
std::string encodeRecord(const Record& record)
{
    JSONObjectWriter writer;
    std::apply([&](const auto&... rows) { (write(rows, record, writer), ...); }, wireRows<Record>);
    return std::move(writer).finish();
}

}  // namespace larkspan::model
