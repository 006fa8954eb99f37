#include "support/Task.h"

#include <string>

#include "support/FatalError.h"

namespace larkspan::support::detail {

void endProcess(const std::exception_ptr& escaped)
{
    try {
        std::rethrow_exception(escaped);
    } catch (const std::exception& error) {
        fatalError(std::string("an exception escaped a task: ") + error.what());
    } catch (...) {
        fatalError("an exception of an unknown type escaped a task");
    }
}

}  // namespace larkspan::support::detail
