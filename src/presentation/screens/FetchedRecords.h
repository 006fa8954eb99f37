#pragma once

#include <string>

#include "presentation/screens/Content.h"
#include "support/Observable.h"

namespace larkspan::presentation {

/// Records that a screen fetches on its own, whatever they are. Main thread only.
class FetchedRecords : public support::Observable {
public:
    virtual ~FetchedRecords() = default;

    /// Begins to fetch and returns at once. Loads may run beside each other; the last to finish wins.
    virtual void load() = 0;

    virtual Content content() const = 0;
    /// Why the last load failed, in words.
    virtual std::string failureText() const = 0;
};

}  // namespace larkspan::presentation
