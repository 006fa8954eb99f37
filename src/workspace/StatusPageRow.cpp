#include "workspace/StatusPageRow.h"

#include "presentation/text/NameText.h"
#include "presentation/text/StatusPagePresentation.h"

namespace larkspan::workspace {

StatusPageRow StatusPageRow::of(const model::StatusPage& page)
{
    const auto shown = presentation::StatusPagePresentation::of(page.status);
    return {.id = page.id,
        .title = presentation::rowTitle(page.name),
        .symbol = std::string(shown.symbol),
        .tone = shown.tone,
        .status = {.text = std::string(shown.label), .tone = shown.tone}};
}

}  // namespace larkspan::workspace
