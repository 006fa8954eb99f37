#include "account/EventTexts.h"

#include <array>

namespace larkspan::simulator {

namespace {

constexpr std::array<EventText, 9> incidentTexts{{
    {"Elevated error rates", "We are seeing **elevated error rates** on some requests and are looking into the cause."},
    {"Slow responses in eu-west", "Responses from `eu-west` take longer than usual. Other regions are not affected."},
    {"Failed logins", "Some people cannot sign in. Sessions that are open already go on working."},
    {"Delayed webhooks", "Webhooks arrive with a delay of up to ten minutes. None are lost."},
    {"Checkout unavailable", "The checkout answers with errors. Carts are kept and orders can be placed again later."},
    {"DNS resolution failures",
        "Names under our domain do not resolve everywhere.\n\n- Upstream has been told\n- A change "
        "of provider is being prepared"},
    {"Search results out of date", "New entries take up to an hour to be found."},
    {"Connection resets on uploads", "Uploads above 50 MB may be cut off. Smaller ones are not affected."},
    {"Degraded database performance", "One replica lags behind. Reads are being moved to the others."},
}};

constexpr std::array<EventText, 5> maintenanceTexts{{
    {"Database upgrade", "The primary database moves to a new version. Expect **short interruptions** of writing."},
    {"Certificate rotation", "Certificates are replaced. No interruption is expected."},
    {"Network maintenance", "A carrier replaces equipment. Traffic takes another road meanwhile."},
    {"Storage migration", "Files move to new storage. They can be read throughout, but not changed."},
    {"Operating system updates", "Hosts restart one after the other."},
}};

}  // namespace

const EventText& incidentText(std::size_t number)
{
    return incidentTexts[number % incidentTexts.size()];
}

const EventText& maintenanceText(std::size_t number)
{
    return maintenanceTexts[number % maintenanceTexts.size()];
}

}  // namespace larkspan::simulator
