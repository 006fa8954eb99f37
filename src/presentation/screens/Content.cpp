#include "presentation/screens/Content.h"

#include <utility>

#include "support/LocalizedError.h"

namespace larkspan::presentation {

Content contentOf(bool hasRecords, bool isLoading, bool hasFailed)
{
    if (hasRecords) return Content::records;
    if (isLoading) return Content::loading;
    return hasFailed ? Content::failure : Content::empty;
}

Placeholder placeholderOf(Content content, const Placeholders& placeholders, std::string failureText)
{
    switch (content) {
    case Content::loading: return {.text = placeholders.loading, .showsProgress = true};
    case Content::failure: {
        auto failure = placeholders.failure;
        failure.text = std::move(failureText);
        return failure;
    }
    case Content::empty: return placeholders.empty;
    case Content::records: break;
    }
    return {};
}

std::string failureText(const std::exception_ptr& error)
{
    return error ? support::localizedDescription(error) : "";
}

}  // namespace larkspan::presentation
