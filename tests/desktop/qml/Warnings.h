#pragma once

#include <gtest/gtest.h>

#include <QString>

namespace larkspan {

/// Fails a test if QML or Qt prints a warning while it runs, unless the warning was expected.
class Warnings final : public testing::EmptyTestEventListener {
public:
    /// Watches from now on until the process ends; every message is still printed on standard error.
    static void watch();

    /// Expects a message that contains these words; the running test fails if there is none.
    static void expect(const QString& words);

private:
    void OnTestStart(const testing::TestInfo& test) override;
    void OnTestEnd(const testing::TestInfo& test) override;
};

}  // namespace larkspan
