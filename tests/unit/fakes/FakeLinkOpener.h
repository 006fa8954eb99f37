#pragma once

#include <string>
#include <vector>

#include "platform/LinkOpener.h"

namespace larkspan::fakes {

class FakeLinkOpener final : public platform::LinkOpener {
public:
    void open(const std::string& address) override { opened.push_back(address); }

    std::vector<std::string> opened;
};

}  // namespace larkspan::fakes
