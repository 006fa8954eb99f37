#pragma once

#include "platform/NotificationCenter.h"

namespace larkspan::fakes {

class FakeNotificationCenter final : public platform::NotificationCenter {
public:
    void requestAuthorization() override { ++authorizationRequests; }

    int authorizationRequests = 0;
};

}  // namespace larkspan::fakes
