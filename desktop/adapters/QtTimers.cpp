#include "adapters/QtTimers.h"

#include <QTimer>

#include <algorithm>
#include <limits>
#include <utility>

namespace larkspan::adapters {

namespace {

using namespace std::chrono_literals;

// QTimer counts in int, and a period of zero would spin.
constexpr std::chrono::milliseconds shortestPeriod = 1ms;
constexpr std::chrono::milliseconds longestPeriod{std::numeric_limits<int>::max()};

class QtTimer final : public platform::Timer {
public:
    QtTimer(std::chrono::milliseconds period, std::function<void()> fire)
    {
        // The default type may fire 5 % early, three seconds in a minute.
        timer_.setTimerType(Qt::PreciseTimer);
        QObject::connect(&timer_, &QTimer::timeout, std::move(fire));
        timer_.start(std::clamp(period, shortestPeriod, longestPeriod));
    }

private:
    QTimer timer_;
};

}  // namespace

std::unique_ptr<platform::Timer> QtTimers::every(std::chrono::milliseconds period, std::function<void()> fire)
{
    return std::make_unique<QtTimer>(period, std::move(fire));
}

}  // namespace larkspan::adapters
