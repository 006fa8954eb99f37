#pragma once

#include <ctime>

namespace larkspan {

/// The CPU time of `work` in seconds, which does not depend on other tests that run meanwhile.
template <typename Work>
double secondsOf(Work work)
{
    const auto begin = std::clock();
    work();
    return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

}  // namespace larkspan
