#include "service/RequestBody.h"

#include "json/WireDate.h"

namespace larkspan::simulator {

namespace {

constexpr int unprocessable = 422;

Refusal wrong(const char* key, const char* what)
{
    return {unprocessable, std::string("\"") + key + "\" " + what};
}

template <typename Value>
Value required(const char* key, std::optional<Value> value)
{
    if (!value) throw wrong(key, "is missing.");
    return *std::move(value);
}

Json parsed(const std::string& text)
{
    try {
        return parsedJson(text);
    } catch (const Json::exception&) {
        throw Refusal(unprocessable, "The body is no JSON.");
    }
}

}  // namespace

Refusal::Refusal(int status, const std::string& sentence)
    : std::runtime_error(sentence)
    , status_(status)
{
}

RequestBody::RequestBody(const Request& request)
    : json_(parsed(request.body))
{
    if (!json_.is_object()) throw Refusal(unprocessable, "The body is no object.");
}

std::optional<std::string> RequestBody::text(const char* key) const
{
    const auto* value = find(key);
    if (!value) return std::nullopt;
    if (!value->is_string()) throw wrong(key, "is no text.");
    return value->get<std::string>();
}

std::string RequestBody::requiredText(const char* key) const
{
    return required(key, text(key));
}

std::vector<std::string> RequestBody::requiredTexts(const char* key) const
{
    const auto* value = find(key);
    if (!value) throw wrong(key, "is missing.");
    if (!value->is_array()) throw wrong(key, "is no list.");
    std::vector<std::string> texts;
    for (const auto& item : *value) {
        if (!item.is_string()) throw wrong(key, "holds something that is no text.");
        texts.push_back(item.get<std::string>());
    }
    return texts;
}

std::optional<std::string> RequestBody::textNotBlank(const char* key) const
{
    auto said = text(key);
    if (said && said->find_first_not_of(' ') == std::string::npos) throw wrong(key, "is empty.");
    return said;
}

std::string RequestBody::requiredTextNotBlank(const char* key) const
{
    return required(key, textNotBlank(key));
}

std::optional<bool> RequestBody::flag(const char* key) const
{
    const auto* value = find(key);
    if (!value) return std::nullopt;
    if (!value->is_boolean()) throw wrong(key, "is neither true nor false.");
    return value->get<bool>();
}

bool RequestBody::requiredFlag(const char* key) const
{
    return required(key, flag(key));
}

std::optional<support::Time> RequestBody::date(const char* key) const
{
    const auto said = text(key);
    if (!said) return std::nullopt;
    const auto time = readWireDate(*said);
    if (!time) throw wrong(key, "is no date.");
    return time;
}

support::Time RequestBody::requiredDate(const char* key) const
{
    return required(key, date(key));
}

const Json* RequestBody::find(const char* key) const
{
    const auto value = json_.find(key);
    return value != json_.end() && !value->is_null() ? &*value : nullptr;
}

}  // namespace larkspan::simulator
