#pragma once

#include <gtest/gtest.h>

#include <QString>

namespace larkspan {

/// Whatever QML or Qt complains of while a test runs fails that test, unless it was expected.
class Warnings final : public testing::EmptyTestEventListener {
public:
    /// Listens from now on, for as long as the process lives; every message still goes to standard error.
    static void watch();

    /// The test that runs makes Qt say something that holds these words, and fails if it does not.
    static void expect(const QString& words);

private:
    void OnTestStart(const testing::TestInfo& test) override;
    void OnTestEnd(const testing::TestInfo& test) override;
};

}  // namespace larkspan
