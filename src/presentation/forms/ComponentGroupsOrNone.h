#pragma once

#include <string>

#include "api/ComponentEndpoints.h"
#include "presentation/forms/ComponentCascade.h"
#include "support/Task.h"

namespace larkspan::presentation {

/// The groups of a page; none if they could not be fetched, since components can do without.
support::Task<ComponentGroups> componentGroupsOrNone(api::ComponentEndpoints& api, std::string pageId);

}  // namespace larkspan::presentation
