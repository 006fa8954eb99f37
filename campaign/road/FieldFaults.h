#pragma once

#include <vector>

#include "stage/Fault.h"

namespace larkspan::campaign {

/// Answers to `operation` in which one field has a value of another kind than the record takes.
std::vector<Fault> fieldFaults(const Operation& operation);

}  // namespace larkspan::campaign
