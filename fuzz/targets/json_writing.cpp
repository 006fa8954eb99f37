// The bodies of requests: each reads back as what was written, and text that is none is refused.

#include <simdjson.h>

#include <concepts>
#include <optional>
#include <string>
#include <tuple>

#include "Bytes.h"
#include "Target.h"
#include "model/bodies/ComponentRequests.h"
#include "model/bodies/IncidentRequests.h"
#include "model/bodies/MaintenanceRequests.h"
#include "model/bodies/UpdateStatusPageRequest.h"
#include "model/json/Decoding.h"
#include "model/json/EncodingError.h"
#include "model/json/JSONEncoder.h"
#include "support/Utf8.h"

using namespace larkspan;
using fuzz::Bytes;
using fuzz::require;

namespace {

/// Fills a record from an input, and notes whether all of it is text.
class Filling {
public:
    explicit Filling(Bytes bytes)
        : bytes_(bytes)
    {
    }

    bool isText() const { return isText_; }
    std::size_t keys() const { return keys_; }

    template <typename Row, typename Record>
    void fill(const Row& row, Record& record)
    {
        fill(record.*row.field);
    }

private:
    template <typename Field>
    void fill(std::optional<Field>& field)
    {
        if (bytes_.coin()) fill(field.emplace());
    }

    void fill(std::string& text)
    {
        text = bytes_.text();
        isText_ = isText_ && support::isValidUtf8(text);
        ++keys_;
    }

    void fill(bool& truth)
    {
        truth = bytes_.coin();
        ++keys_;
    }

    void fill(support::Time& time)
    {
        constexpr std::uint64_t tenThousandYears = 315'569'520'000;
        time = support::Time{std::chrono::sys_days{std::chrono::year{0} / 1 / 1}}
            + std::chrono::seconds(bytes_.number() % tenThousandYears);
        ++keys_;
    }

    Bytes bytes_;
    bool isText_ = true;
    std::size_t keys_ = 0;
};

template <typename Record>
void checkBody(const std::string& body, const Record& record, std::size_t keys)
{
    require(support::isValidUtf8(body), "a body is valid text");
    require(body.find_first_of("\n\r") == std::string::npos, "a body is one line");
    simdjson::dom::parser parser;
    simdjson::dom::element root;
    simdjson::dom::object object;
    require(parser.parse(body).get(root) == simdjson::SUCCESS && root.get(object) == simdjson::SUCCESS,
        "a body is an object");
    require(object.size() == keys, "a body has the keys of its fields, and none for an absent one");
    for (const auto field : object) require(!field.value.is_null(), "a body has no null");

    model::JSONReading reading{.now = {}};
    require(model::decode<Record>(model::JSONValue(root, reading)) == record, "what is written reads back equal");
}

template <typename Record>
void check(Bytes bytes)
{
    Record record;
    Filling filling(bytes);
    std::apply([&](const auto&... rows) { (filling.fill(rows, record), ...); }, model::wireRows<Record>);
    std::string body;
    try {
        body = model::JSONEncoder().encode(record);
    } catch (const model::EncodingError&) {
        require(!filling.isText(), "only what is no text is refused");
        return;
    }
    require(filling.isText(), "what is no text is refused");
    checkBody(body, record, filling.keys());
}

template <typename... Records>
void checkAll(Bytes bytes, model::TypeList<Records...>)
{
    (check<Records>(bytes), ...);
}

}  // namespace

FUZZ_TARGET(json_writing, input)
{
    checkAll(Bytes(input), model::RequestBodies{});
}
