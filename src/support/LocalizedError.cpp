#include "support/LocalizedError.h"

namespace larkspan::support {

std::string localizedDescription(const std::exception_ptr& error)
{
    try {
        std::rethrow_exception(error);
    } catch (const LocalizedError& known) {
        return known.localizedDescription();
    } catch (...) {
        return "The operation could not be completed.";
    }
}

}  // namespace larkspan::support
