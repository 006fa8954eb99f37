#include "model/json/Encoding.h"

#include <gtest/gtest.h>

#include "model/json/EncodingError.h"

namespace larkspan::model {

using namespace std::chrono_literals;

namespace {

struct Announcement {
    WIRE_FIELD(std::string, title);
    WIRE_FIELD(std::optional<std::string>, message);
    WIRE_FIELD(bool, notifySubscribers);
    WIRE_FIELD(std::optional<support::Time>, startAt);
};

TEST(Encoding, WritesEveryFieldUnderItsWireKeyInTheOrderOfTheTable)
{
    const support::Time start = std::chrono::sys_days{2026y / 3 / 1} + 9h + 30min + 999ms;
    EXPECT_EQ(encodeRecord(Announcement{.title = "T", .message = "M", .notifySubscribers = true, .startAt = start}),
        R"({"title":"T","message":"M","notify_subscribers":true,"start_at":"2026-03-01T09:30:00Z"})");
}

TEST(Encoding, WithAnAbsentMessageThereIsNoMessageKeyAtAll)
{
    EXPECT_EQ(encodeRecord(Announcement{.title = "T"}), R"({"title":"T","notify_subscribers":false})");
}

TEST(Encoding, KeepsAnEmptyTextThatIsPresent)
{
    EXPECT_EQ(encodeRecord(Announcement{.message = ""}), R"({"title":"","message":"","notify_subscribers":false})");
}

TEST(Encoding, EscapesWhatJSONReservesAndNothingElse)
{
    EXPECT_EQ(encodeRecord(Announcement{.title = std::string("\"\\/\b\f\n\r\t\0\x1f\x7fä😀\u2028", 20)}),
        std::string(R"({"title":"\"\\/\b\f\n\r\t\u0000\u001f)")
            + "\x7fä😀\u2028"
              R"(","notify_subscribers":false})");
}

TEST(Encoding, AWriterTakesNumbersAndOtherObjectsToo)
{
    JSONObjectWriter first;
    first.write("count", -3);
    JSONObjectWriter whole;
    whole.writeObjects("noPages", {});
    whole.writeObjects("allPages", {std::move(first).finish(), "{}"});
    EXPECT_EQ(std::move(whole).finish(), R"({"no_pages":[],"all_pages":[{"count":-3},{}]})");
}

TEST(Encoding, OfATextThatIsNotUTF8FailsAndNamesTheKey)
{
    try {
        encodeRecord(Announcement{.title = "T", .message = "\xFF"});
        FAIL();
    } catch (const EncodingError& error) {
        EXPECT_EQ(error.localizedDescription(), "The request could not be written: message is not valid text.");
    }
}

}  // namespace

}  // namespace larkspan::model
