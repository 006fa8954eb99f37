#include "platform/URLError.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace larkspan::platform {

namespace {

TEST(URLError, EachCodeHasASentenceOfItsOwn)
{
    std::set<std::string> texts;
    int codes = 0;
    for (auto code = 0; code <= static_cast<int>(URLError::Code::unknown); ++code, ++codes) {
        const URLError error(static_cast<URLError::Code>(code));
        EXPECT_EQ(static_cast<int>(error.code()), code);
        const auto& text = error.localizedDescription();
        EXPECT_TRUE(text.front() >= 'A' && text.front() <= 'Z' && text.ends_with('.')) << text;
        texts.insert(text);
    }
    EXPECT_EQ(texts.size(), static_cast<std::size_t>(codes));
}

}  // namespace

}  // namespace larkspan::platform
