#pragma once

#include <ctime>

namespace larkspan {

/// What `work` takes of the processor, in seconds: other tests run beside the one that asks.
template <typename Work>
double secondsOf(Work work)
{
    const auto begin = std::clock();
    work();
    return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

}  // namespace larkspan
