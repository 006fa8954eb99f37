#pragma once

#include "api/ComponentEndpoints.h"
#include "api/MonitorEndpoints.h"
#include "platform/Clock.h"
#include "platform/CredentialStore.h"
#include "platform/Executor.h"
#include "platform/LinkOpener.h"
#include "platform/LocaleText.h"
#include "presentation/forms/ComponentSelection.h"

namespace larkspan::presentation {

/// The services that the screen of a page's events needs besides the operations on such events.
struct EventListPorts {
    platform::Executor& main;
    api::ComponentEndpoints& components;
    api::MonitorEndpoints& monitors;
    platform::CredentialStore& credentials;
    const platform::Clock& clock;
    const platform::LocaleText& locale;
    platform::LinkOpener& links;

    /// For the form of a new event.
    ComponentSelection::Ports selection() const { return {main, components, monitors, locale}; }
};

}  // namespace larkspan::presentation
