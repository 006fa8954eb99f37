#include "FieldFaults.h"

#include <algorithm>
#include <optional>

#include "Fields.h"
#include "stage/Endings.h"
#include "json/Json.h"

namespace larkspan::campaign {

using simulator::Json;

namespace {

/// A value in place of a field's own. The names are those that the sentences use.
struct Value {
    std::string name;
    std::string text;
    std::string kind;
};

const std::vector<Value>& values()
{
    static const std::vector<Value> all{
        {"null", "null", "null"},
        {"an integer", "7", "a number"},
        {"a fraction", "4.5", "a number"},
        {"an integer past 64 bits", "99999999999999999999", "a number"},
        {"a number past all numbers", "1e999", "a number"},
        {"a string", "\"odd\"", "a string"},
        {"a boolean", "true", "a boolean"},
        {"a list", "[]", "a list"},
        {"an object", "{}", "an object"},
    };
    return all;
}

/// What is wrong with the value in that field; absent if nothing is.
std::optional<std::string> problem(const Field& field, const Value& value)
{
    if (field.takes == Takes::anything) return std::nullopt;
    if (value.kind == "null" && !field.isRequired) return std::nullopt;
    const auto unlessOf = [&value](const std::string& kind, const std::string& wanted) -> std::optional<std::string> {
        if (value.kind == kind) return std::nullopt;
        return "Expected " + wanted + " but found " + value.kind;
    };
    switch (field.takes) {
    case Takes::word:
        if (value.kind == "a string") return "Unknown word: odd";
        return unlessOf("a string", "a string");
    case Takes::date:
        if (value.kind == "a string") return "Cannot decode date: odd";
        return unlessOf("a string", "a string");
    case Takes::integerOrText:
        if (value.name == "an integer") return std::nullopt;
        return unlessOf("a string", "a string");
    case Takes::integer:
        if (value.name == "a fraction") return "Not a 64-bit integer: 4.5";
        if (value.name == "an integer past 64 bits") return "Not a 64-bit integer: 1e+20";
        if (value.name == "a number past all numbers") return "Not a 64-bit number";
        return unlessOf("a number", "an integer");
    case Takes::number:
        if (value.name == "a number past all numbers") return "Not a 64-bit number";
        return unlessOf("a number", "a number");
    case Takes::boolean: return unlessOf("a boolean", "a boolean");
    case Takes::list: return unlessOf("a list", "a list");
    case Takes::object: return unlessOf("an object", "an object");
    case Takes::text:
    case Takes::anything: break;
    }
    return unlessOf("a string", "a string");
}

/// The field's place as the sentences name it: "metrics[0].period".
std::string spoken(const std::string& pointer)
{
    std::string text;
    for (std::size_t at = 1; at < pointer.size();) {
        const auto end = std::min(pointer.find('/', at), pointer.size());
        const auto step = pointer.substr(at, end - at);
        const bool isIndex = step.find_first_not_of("0123456789") == std::string::npos;
        if (isIndex)
            text += "[" + step + "]";
        else
            text += (text.empty() ? "" : ".") + step;
        at = end + 1;
    }
    return text;
}

/// How the record stands in the operation's answer.
struct Envelope {
    std::string before;
    std::string after;
    /// Its place in the sentences.
    std::string place;
};

Envelope envelopeOf(const Operation& operation)
{
    switch (operation.answer) {
    case Answer::list: return {"{\"data\":[", "]}", "data[0]."};
    case Answer::namedList: return {"[", "]", "[0]."};
    case Answer::bareObject: return {"{\"monitors\":[", "]}", "monitors[0]."};
    case Answer::record:
    case Answer::nothing:
    case Answer::unread: break;
    }
    return {"{\"data\":", "}", "data."};
}

/// The record with `text` in place of the field; without the field if `text` is absent.
std::string spoiled(const Json& sample, const std::string& place, const std::optional<std::string>& text)
{
    static const std::string mark = "\"@\"";
    auto changed = sample;
    const Json::json_pointer pointer(place);
    if (!text) {
        changed.at(pointer.parent_pointer()).erase(pointer.back());
        return simulator::textOf(changed);
    }
    changed.at(pointer) = "@";
    auto written = simulator::textOf(changed);
    return written.replace(written.find(mark), mark.size(), *text);
}

Fault answers(const std::string& name, const std::string& body, const std::string& sentence)
{
    return {name, endsWith(sentence), [body](Turn& turn) {
                turn.answer();
                turn.peer.answer("200 OK", body);
            }};
}

bool isInList(const Field& field)
{
    return field.place.find_last_not_of("0123456789") == field.place.rfind('/');
}

std::vector<Fault> faultsOf(const Field& field, const Json& sample, const Envelope& envelope)
{
    const auto place = spoken(field.place);
    const auto inWhole = [&envelope](const std::string& record) { return envelope.before + record + envelope.after; };
    std::vector<Fault> all;
    for (const auto& value : values()) {
        const auto found = problem(field, value);
        const auto sentence = found ? envelope.place + place + ": " + *found : "";
        all.push_back(
            answers(value.name + " in " + place, inWhole(spoiled(sample, field.place, value.text)), sentence));
    }
    if (isInList(field)) return all;

    const bool isMapEntry = field.place == "/metrics/m1";
    const bool isMissed = field.isRequired && field.takes != Takes::anything && !isMapEntry;
    all.push_back(answers(place + " missing", inWhole(spoiled(sample, field.place, std::nullopt)),
        isMissed ? envelope.place + place + ": The key is missing" : ""));
    const auto good = simulator::textOf(sample.at(Json::json_pointer(field.place)));
    const auto last = field.place.substr(field.place.rfind('/') + 1);
    all.push_back(
        answers(place + " twice", inWhole(spoiled(sample, field.place, good + ",\"" + last + "\":null")), ""));
    return all;
}

}  // namespace

std::vector<Fault> fieldFaults(const Operation& operation)
{
    const auto record = std::ranges::find(records(), operation.record, &Record::name);
    if (record == records().end()) return {};
    auto text = record->sample;
    std::ranges::replace(text, '\'', '"');
    const auto sample = simulator::parsedJson(text);
    std::vector<Fault> all;
    for (const auto& field : record->fields) {
        const auto some = faultsOf(field, sample, envelopeOf(operation));
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

}  // namespace larkspan::campaign
