#pragma once

#include <string>

#include "presentation/screens/Content.h"
#include "support/Observable.h"

namespace larkspan::presentation {

/// Records of any kind that a screen fetches itself. Main thread only.
class FetchedRecords : public support::Observable {
public:
    virtual ~FetchedRecords() = default;

    /// Starts to fetch and returns at once. Loads may run concurrently; the last to finish wins.
    virtual void load() = 0;

    virtual Content content() const = 0;
    /// The reason why the last load failed, in words.
    virtual std::string failureText() const = 0;
};

}  // namespace larkspan::presentation
