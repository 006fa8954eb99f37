#include "service/WallClock.h"

namespace larkspan::simulator {

namespace {

class WallClock final : public platform::Clock {
public:
    support::Time now() const override
    {
        return std::chrono::time_point_cast<std::chrono::milliseconds>(std::chrono::system_clock::now());
    }
};

}  // namespace

const platform::Clock& wallClock()
{
    static const WallClock clock;
    return clock;
}

}  // namespace larkspan::simulator
