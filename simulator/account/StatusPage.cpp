#include "account/StatusPage.h"

namespace larkspan::simulator {

void StatusPage::setHealth(PageHealth health)
{
    switch (health) {
    case PageHealth::operational:
        status = "operational";
        overview = Overview{"operational", "Operational"};
        break;
    case PageHealth::degraded:
        status = "degraded";
        overview = Overview{"degraded", "Degraded Performance"};
        break;
    case PageHealth::majorOutage:
        status = "down";
        overview = Overview{"major-outage", "Major Outage"};
        break;
    case PageHealth::maintenance:
        status = "maintenance";
        overview = Overview{"maintenance", "Under Maintenance"};
        break;
    }
}

}  // namespace larkspan::simulator
