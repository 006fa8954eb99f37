#include "stage/Endings.h"

namespace larkspan::campaign {

namespace {

const std::string prefix = "The server’s answer: ";

/// Another body under the answer's own status.
Fault body(const std::string& name, Ending ending, std::function<std::string(const std::string& good)> spoiled)
{
    return {"a body of " + name, std::move(ending), [spoiled = std::move(spoiled)](Turn& turn) {
                const auto reply = turn.answer();
                turn.peer.answer("200 OK", spoiled(bodyOf(reply)));
            }};
}

Fault body(const std::string& name, Ending ending, const std::string& text)
{
    return body(name, std::move(ending), [text](const std::string&) { return text; });
}

/// A value at the root, named as the sentences do, that is neither an object nor a list.
Fault scalar(const std::string& name, const std::string& text)
{
    const auto noObject = prefix + "Expected an object but found " + name;
    const auto noList = prefix + "Expected a list but found " + name;
    return body(name + " alone",
        ByAnswer{
            .nothing = noObject, .record = noObject, .list = noObject, .namedList = noList, .bareObject = noObject},
        text);
}

ByAnswer withoutData()
{
    return {.nothing = "",
        .record = "data: The key is missing",
        .list = "data: The key is missing",
        .namedList = prefix + "Expected a list but found an object",
        .bareObject = "monitors: The key is missing"};
}

ByAnswer nullData()
{
    auto ending = withoutData();
    ending.record = "data: Expected an object but found null";
    ending.list = "";
    return ending;
}

ByAnswer emptyList()
{
    const auto noObject = prefix + "Expected an object but found a list";
    return {.nothing = noObject, .record = noObject, .list = "", .namedList = "", .bareObject = noObject};
}

std::string nested(const std::string& key, std::size_t depth)
{
    return "{\"" + key + "\":" + std::string(depth, '[') + std::string(depth, ']') + "}";
}

/// The good object with one more member in front.
std::string withMember(const std::string& member, const std::string& good)
{
    return "{" + member + "," + good.substr(1);
}

std::string wide(const std::string& text)
{
    std::string units;
    for (const char character : text) {
        units += character;
        units += '\0';
    }
    return units;
}

std::vector<Fault> noJSONAtAll()
{
    const auto unreadable = cannotRead(noJSON);
    return {
        body("nothing", endsAsStatus(200, false), std::string()),
        body("blanks", unreadable, " \n "),
        body("HTML", unreadable, "<!DOCTYPE html><html><body><h1>It works!</h1></body></html>"),
        body("a login page", unreadable, "<html><form action=\"https://127.0.0.1/\"><input name=key></form></html>"),
        body("a word", unreadable, "OK"),
        body("half of it", unreadable, [](const std::string& good) { return good.substr(0, good.size() / 2); }),
        body("it twice", unreadable, [](const std::string& good) { return good + good; }),
        body("it with a comma too many", unreadable,
            [](const std::string& good) { return good.substr(0, good.size() - 1) + ",}"; }),
        body("it with a comment", unreadable, [](const std::string& good) { return "/* good */" + good; }),
        body("it as a call", unreadable, [](const std::string& good) { return "take(" + good + ")"; }),
        body("it behind a guard", unreadable, [](const std::string& good) { return ")]}',\n" + good; }),
        body("single quotes", unreadable, "{'data': []}"),
        body("NaN", unreadable, R"({"data": NaN})"),
        body("a line break in a text", unreadable, "{\"data\": \"a\nb\"}"),
        body("a NUL", unreadable, std::string("{\"data\": \0}", 11)),
        body("half a surrogate", unreadable, R"({"data": "\ud800"})"),
        body("bytes that are no text", cannotRead(prefix + "Not valid UTF-8"), "{\"data\": \"\xff\xfe\"}"),
        body("another encoding", unreadable, wide(R"({"data":[]})")),
    };
}

std::vector<Fault> otherJSON()
{
    const auto tooDeep = cannotRead(prefix + "Nested too deeply");
    return {
        scalar("null", "null"),
        scalar("a boolean", "true"),
        scalar("a number", "12"),
        scalar("a string", "\"data\""),
        body("an empty object", withoutData(), "{}"),
        body("an object of other keys", withoutData(), R"({"error": "no", "code": 7})"),
        body("null data", nullData(), R"({"data": null})"),
        body("an empty list", emptyList(), "[]"),
        body("deep nesting", tooDeep, nested("data", 10'000)),
        body("deep nesting under a key that nobody reads", tooDeep, nested("other", 10'000)),
        body("brackets only", tooDeep, std::string(200'000, '[') + std::string(200'000, ']')),
    };
}

/// Odd bodies that say what the good one says.
std::vector<Fault> goodJSON()
{
    return {
        body("it with a byte order mark", succeeds, [](const std::string& good) { return "\xef\xbb\xbf" + good; }),
        body("it with blanks around", succeeds, [](const std::string& good) { return "\r\n\t " + good + " \n"; }),
        body("it with the same key twice, the second null", succeeds,
            [](const std::string& good) { return good.substr(0, good.size() - 1) + R"(,"data":null})"; }),
        body("it with a number past all numbers", succeeds,
            [](const std::string& good) { return withMember(R"("other":1e99999)", good); }),
        body("it with a number of a thousand digits", succeeds,
            [](const std::string& good) { return withMember("\"other\":" + std::string(1'000, '9'), good); }),
        body("it with a key of ten thousand letters", succeeds,
            [](const std::string& good) { return withMember("\"" + std::string(10'000, 'k') + "\":1", good); }),
        body("it with an empty key", succeeds, [](const std::string& good) { return withMember("\"\":1", good); }),
        body("it with nesting of a thousand under another key", succeeds,
            [](const std::string& good) {
                return withMember("\"other\":" + std::string(1'000, '[') + std::string(1'000, ']'), good);
            }),
    };
}

}  // namespace

std::vector<Fault> bodyFaults()
{
    auto all = noJSONAtAll();
    for (const auto& kind : {otherJSON(), goodJSON()}) all.insert(all.end(), kind.begin(), kind.end());
    return all;
}

}  // namespace larkspan::campaign
