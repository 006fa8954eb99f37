// A module that leaves a mark wherever it is loaded: the file that LARKSPAN_MARK names.

#include <cstdlib>
#include <fstream>

namespace {

[[gnu::constructor]] void leaveMark()
{
    if (const char* const mark = std::getenv("LARKSPAN_MARK")) std::ofstream(mark) << "loaded";
}

}  // namespace
