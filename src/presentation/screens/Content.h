#pragma once

#include <exception>
#include <string>

#include "presentation/shapes/Placeholder.h"

namespace larkspan::presentation {

/// The state of a screen of fetched records.
enum class Content { loading, failure, empty, records };

/// Existing records are shown, whatever the result of the latest load; without records, a running load takes precedence
/// over an earlier failure.
Content contentOf(bool hasRecords, bool isLoading, bool hasFailed);

/// The placeholders for the states without records.
struct Placeholders {
    /// The text of the progress.
    std::string loading{};
    /// Its text is set to that of the failure.
    Placeholder failure{.symbol = "exclamationmark.triangle", .tone = Tone::yellow, .offersRetry = true};
    Placeholder empty{};
};

/// Empty while there are records; `failureText` is the reason why the last load failed.
Placeholder placeholderOf(Content content, const Placeholders& placeholders, std::string failureText);

/// The error's description; empty without an error.
std::string failureText(const std::exception_ptr& error);

}  // namespace larkspan::presentation
