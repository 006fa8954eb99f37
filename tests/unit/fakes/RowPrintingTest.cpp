#include <gtest/gtest.h>

#include "presentation/shapes/Placeholder.h"
#include "workspace/StatusPageRow.h"

namespace larkspan {

namespace {

TEST(AFailedTest, ShowsARowByItsFieldsAndNotAsBytes)
{
    const workspace::StatusPageRow row{.id = "7", .title = "Acme", .status = {.text = "Down"}};
    const auto shown = testing::PrintToString(row);
    EXPECT_NE(shown.find(R"("7", "Acme")"), std::string::npos) << shown;
    EXPECT_NE(shown.find(R"({"Down", )"), std::string::npos) << shown;
    EXPECT_EQ(shown.find("byte object"), std::string::npos) << shown;
}

}  // namespace

}  // namespace larkspan
