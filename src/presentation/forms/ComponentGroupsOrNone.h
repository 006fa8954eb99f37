#pragma once

#include <string>

#include "api/ComponentEndpoints.h"
#include "presentation/forms/ComponentCascade.h"
#include "support/Task.h"

namespace larkspan::presentation {

/// The groups of a page; none where they could not be fetched, for components do without.
support::Task<ComponentGroups> componentGroupsOrNone(api::ComponentEndpoints& api, std::string pageId);

}  // namespace larkspan::presentation
