#pragma once

#include <exception>

#include "presentation/Placeholder.h"

namespace larkspan::presentation {

/// What a screen of fetched records shows.
enum class Content { loading, failure, empty, records };

/// Records that are there are shown, whatever became of the latest load; without any, a running load comes before the
/// failure of the one before it.
Content contentOf(bool hasRecords, bool isLoading, bool hasFailed);

/// The placeholder of a load that runs.
Placeholder loadingPlaceholder(std::string text);

/// `failure` with the error's description in place of its text.
Placeholder failurePlaceholder(Placeholder failure, const std::exception_ptr& error);

}  // namespace larkspan::presentation
