#pragma once

#include <exception>
#include <string>
#include <utility>

#include "api/APIError.h"

namespace larkspan::api {

/// Whether a write that ended with `failure` may have taken effect: its answer was lost, cannot be read, or reports an
/// error inside the service. False if it was refused or never sent.
bool mayHaveTakenEffect(const std::exception_ptr& failure);

/// Returns `answer` if it is about the changed record, the one with this id; an answer about another record is treated
/// as unreadable.
template <typename Record>
Record answerAbout(const std::string& id, Record answer)
{
    if (answer.id != id) throw APIError::invalidResponse();
    return answer;
}

}  // namespace larkspan::api
