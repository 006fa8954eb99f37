#include "presentation/text/WebAddress.h"

#include <gtest/gtest.h>

namespace larkspan::presentation {

namespace {

TEST(AWebAddress, IsHTTPOrHTTPSInAnyCaseOfLetters)
{
    for (const auto* const address : {"http://a", "https://a", "HTTPS://a", "Http://"}) {
        EXPECT_TRUE(isWebAddress(address)) << address;
    }
}

TEST(AWebAddress, IsNothingElse)
{
    for (const auto* const address : {"", "http", "http:/a", "ftp://a", "javascript:alert(1)", "//a", "xhttp://a"}) {
        EXPECT_FALSE(isWebAddress(address)) << address;
    }
}

}  // namespace

}  // namespace larkspan::presentation
