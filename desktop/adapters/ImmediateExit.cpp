#include "adapters/ImmediateExit.h"

#include <cstdlib>

namespace larkspan::adapters {

namespace {

bool isImmediate = false;

void endAtOnce()
{
    // The code is that of Qt, which has written what is wrong.
    if (isImmediate) std::_Exit(EXIT_FAILURE);
}

}  // namespace

ImmediateExit::ImmediateExit()
{
    // Called before whatever was registered, or constructed, earlier is destroyed.
    std::atexit(&endAtOnce);
    isImmediate = true;
}

ImmediateExit::~ImmediateExit()
{
    isImmediate = false;
}

}  // namespace larkspan::adapters
