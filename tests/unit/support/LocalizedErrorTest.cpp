#include "support/LocalizedError.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace larkspan::support {

namespace {

TEST(LocalizedError, DescribesItselfInItsOwnSentence)
{
    EXPECT_EQ(localizedDescription(std::make_exception_ptr(LocalizedError("It is late."))), "It is late.");
}

TEST(LocalizedError, AFailureWithoutASentenceGetsAGeneralOneAndItsInnerTextIsNotShown)
{
    EXPECT_EQ(localizedDescription(std::make_exception_ptr(std::runtime_error("vector::_M_range_check"))),
        "The operation could not be completed.");
    EXPECT_EQ(localizedDescription(std::make_exception_ptr(3)), "The operation could not be completed.");
}

}  // namespace

}  // namespace larkspan::support
