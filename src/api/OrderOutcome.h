#pragma once

#include <exception>
#include <string>
#include <utility>

#include "api/APIError.h"

namespace larkspan::api {

/// Whether an order that ended in `failure` may have taken place all the same: its answer was lost on the way, cannot
/// be read, or comes from a service that broke in the middle. False where it was refused or never sent.
bool mayHaveTakenPlace(const std::exception_ptr& failure);

/// `answer`, if it is about the record of that id, which was ordered to be changed; an answer about another tells
/// nothing and so is as good as unreadable.
template <typename Record>
Record answerAbout(const std::string& id, Record answer)
{
    if (answer.id != id) throw APIError::invalidResponse();
    return answer;
}

}  // namespace larkspan::api
