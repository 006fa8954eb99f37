#include "server/FaultReader.h"

#include <functional>
#include <map>

#include "json/Json.h"

namespace larkspan::simulator {

namespace {

/// Reads the members of an order by name and type.
class Members {
public:
    explicit Members(const Json& json)
        : json_(json)
    {
    }

    std::optional<std::uint64_t> number(const char* key) const
    {
        const auto value = json_.find(key);
        if (value == json_.end()) return std::nullopt;
        if (!value->is_number_unsigned()) throw BadOrder(std::string("\"") + key + "\" is no whole number from 0.");
        return value->get<std::uint64_t>();
    }

    std::optional<std::string> text(const char* key) const
    {
        const auto value = json_.find(key);
        if (value == json_.end()) return std::nullopt;
        if (!value->is_string()) throw BadOrder(std::string("\"") + key + "\" is no text.");
        return value->get<std::string>();
    }

    bool truth(const char* key) const
    {
        const auto value = json_.find(key);
        if (value == json_.end()) return false;
        if (!value->is_boolean()) throw BadOrder(std::string("\"") + key + "\" is neither true nor false.");
        return value->get<bool>();
    }

    template <typename Value>
    static Value required(std::optional<Value> value, const char* key)
    {
        if (!value) throw BadOrder(std::string("\"") + key + "\" is missing.");
        return *value;
    }

    int requiredCode() const { return static_cast<int>(required(number("code"), "code")); }

    std::chrono::milliseconds time(std::chrono::milliseconds otherwise) const
    {
        const auto found = number("milliseconds");
        return found ? std::chrono::milliseconds(static_cast<std::int64_t>(*found)) : otherwise;
    }

private:
    const Json& json_;
};

Fault readDrip(const Members& members)
{
    const fault::Drip usual;
    return fault::Drip{members.number("bytes").value_or(usual.bytes), members.time(usual.pause)};
}

Fault readBody(const Members& members)
{
    const fault::Body usual;
    return fault::Body{
        members.text("text").value_or(usual.text), members.text("content_type").value_or(usual.contentType)};
}

Fault readHugeBody(const Members& members)
{
    fault::HugeBody huge;
    huge.bytes = members.number("bytes").value_or(huge.bytes);
    huge.isPacked = members.truth("packed");
    return huge;
}

Fault readRedirect(const Members& members)
{
    fault::Redirect redirect{Members::required(members.text("location"), "location")};
    if (const auto code = members.number("code")) redirect.code = static_cast<int>(*code);
    return redirect;
}

Fault readNesting(const Members& members)
{
    const auto depth = members.number("depth");
    return depth ? fault::DeepNesting{static_cast<std::size_t>(*depth)} : fault::DeepNesting{};
}

using ReadFault = std::function<Fault(const Members&)>;

const std::map<std::string, ReadFault, std::less<>>& faultReaders()
{
    static const std::map<std::string, ReadFault, std::less<>> readers{
        {"status", [](const Members& members) { return fault::Status{members.requiredCode()}; }},
        {"delay", [](const Members& members) { return fault::Delay{members.time({})}; }},
        {"hang", [](const Members&) { return fault::Hang{}; }},
        {"drip", readDrip},
        {"reset", [](const Members& members) { return fault::Reset{members.number("after")}; }},
        {"truncation",
            [](const Members& members) {
                return fault::Truncation{members.number("after"), members.truth("hides_length")};
            }},
        {"closed_before_first_byte", [](const Members&) { return fault::ClosedBeforeFirstByte{}; }},
        {"not_http", [](const Members&) { return fault::NotHttp{}; }},
        {"body", readBody},
        {"garbage", [](const Members&) { return fault::Garbage{}; }},
        {"wrong_shape", [](const Members&) { return fault::WrongShape{}; }},
        {"bad_element", [](const Members&) { return fault::BadElement{}; }},
        {"deep_nesting", readNesting},
        {"huge_body", readHugeBody},
        {"redirect", readRedirect},
    };
    return readers;
}

}  // namespace

FaultRule readFaultRule(const Json& json)
{
    const Members members(json);
    const auto name = Members::required(members.text("fault"), "fault");
    const auto reader = faultReaders().find(name);
    if (reader == faultReaders().end()) throw BadOrder("There is no fault \"" + name + "\".");

    FaultRule rule{reader->second(members)};
    rule.path = members.text("path").value_or("");
    rule.method = members.text("method").value_or("");
    if (const auto times = members.number("times")) rule.times = static_cast<int>(*times);
    return rule;
}

}  // namespace larkspan::simulator
