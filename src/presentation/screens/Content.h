#pragma once

#include <exception>
#include <string>

#include "presentation/shapes/Placeholder.h"

namespace larkspan::presentation {

/// What a screen of fetched records shows.
enum class Content { loading, failure, empty, records };

/// Records that are there are shown, whatever became of the latest load; without any, a running load comes before the
/// failure of the one before it.
Content contentOf(bool hasRecords, bool isLoading, bool hasFailed);

/// What stands in place of the records, in each state that has none.
struct Placeholders {
    /// What the progress says.
    std::string loading{};
    /// Its text is that of the failure.
    Placeholder failure{.symbol = "exclamationmark.triangle", .tone = Tone::yellow, .offersRetry = true};
    Placeholder empty{};
};

/// All empty while there are records; `failureText` says why the last load failed.
Placeholder placeholderOf(Content content, const Placeholders& placeholders, std::string failureText);

/// The error's description; empty without an error.
std::string failureText(const std::exception_ptr& error);

}  // namespace larkspan::presentation
