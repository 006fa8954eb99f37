#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "memory/Subjects.h"

namespace larkspan::campaign {

/// The number of times that the subject asks for memory.
std::size_t requestsOf(const Subject& subject);

/// What is not as promised when a process gets no memory at that request of the subject: it ends with its sentence, or
/// goes on.
std::vector<std::string> refusalFailures(const Subject& subject, std::size_t refused);

}  // namespace larkspan::campaign
