#pragma once

#include <vector>

#include "platform/NotificationCenter.h"

namespace larkspan::fakes {

class FakeNotificationCenter final : public platform::NotificationCenter {
public:
    void requestAuthorization() override { ++authorizationRequests; }
    void add(const platform::NotificationRequest& request) override { added.push_back(request); }

    int authorizationRequests = 0;
    std::vector<platform::NotificationRequest> added;
};

}  // namespace larkspan::fakes
