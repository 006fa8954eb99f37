#pragma once

#include <memory>
#include <string>
#include <vector>

#include "service/Service.h"
#include "stage/Fault.h"
#include "stage/Origin.h"

namespace larkspan::campaign {

/// The service of one cell behind a road that has a fault while it is armed, and the other origins that the fault may
/// point to.
class Road {
public:
    explicit Road(const Fault& fault);
    ~Road();

    /// The port of the service at 127.0.0.1.
    int port() const;

    /// From now on these requests meet the fault.
    void arm(Met met);
    void mend();

    simulator::Service& service() { return service_; }
    const Subjects& subjects() const { return subjects_; }

    /// The writes that the service has read and carried out, or refused.
    std::vector<simulator::Request> writesSeen() const;

    /// What is not as promised of the key and of other origins, a sentence each.
    std::vector<std::string> leaks() const;

private:
    simulator::Service service_;
    const Subjects subjects_;
    const std::unique_ptr<OtherOrigins> others_;
    const std::unique_ptr<Origin> origin_;
};

}  // namespace larkspan::campaign
