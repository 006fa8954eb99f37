#include "json/Json.h"
#include "json/WireDate.h"

#include <gtest/gtest.h>

namespace larkspan::simulator {
namespace {

using namespace std::chrono_literals;

TEST(Json, KeepsEachKindOfValueAndTheOrderOfMembersThroughTextAndBack)
{
    const std::string text = R"({"b":[1,-2,2.5,true,false,null],"a":{"text":"line\n \"quoted\" \\ ø"},"empty":[]})";

    EXPECT_EQ(textOf(parsedJson(text)), text);
}

TEST(Json, OfTextThatIsNoJsonIsMalformed)
{
    EXPECT_THROW(parsedJson("{\"open\":"), Json::exception);
    EXPECT_THROW(parsedJson(""), Json::exception);
}

TEST(WireDate, HasAFractionOnlyWhereTheMomentHasOne)
{
    const support::Time whole = std::chrono::sys_days(std::chrono::year(2026) / 3 / 1) + 9h + 5min + 7s;

    EXPECT_EQ(wireDate(whole), "2026-03-01T09:05:07Z");
    EXPECT_EQ(wireDate(whole + 12ms), "2026-03-01T09:05:07.012Z");
}

}  // namespace
}  // namespace larkspan::simulator
