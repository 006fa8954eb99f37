#include "presentation/Content.h"

#include <utility>

#include "support/LocalizedError.h"

namespace larkspan::presentation {

Content contentOf(bool hasRecords, bool isLoading, bool hasFailed)
{
    if (hasRecords) return Content::records;
    if (isLoading) return Content::loading;
    return hasFailed ? Content::failure : Content::empty;
}

Placeholder loadingPlaceholder(std::string text)
{
    return {.text = std::move(text), .showsProgress = true};
}

Placeholder failurePlaceholder(Placeholder failure, const std::exception_ptr& error)
{
    failure.text = support::localizedDescription(error);
    return failure;
}

}  // namespace larkspan::presentation
