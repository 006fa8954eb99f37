#pragma once

#include <functional>

#include "platform/CredentialStore.h"
#include "presentation/Content.h"
#include "presentation/FetchedRecords.h"
#include "support/Observable.h"

namespace larkspan::presentation {

/// The screen of a list that is fetched: which of its states shows, in which words, and what brings it up to date. Main
/// thread only.
class ListScreen : public support::Observable {
public:
    virtual ~ListScreen() = default;

    /// Calls `observer` before anything changes that the list shows, or what stands in front of it.
    [[nodiscard]] support::Subscriptions observe(const std::function<void()>& observer);

    /// The list came into sight.
    void appear() { fetched().load(); }
    /// The user asked for a load. That is worth a prompt of the credential store.
    void refresh();

    Content content() const { return fetched().content(); }
    /// What stands in place of the list; all empty while there is one.
    Placeholder placeholder() const;

protected:
    ListScreen(platform::CredentialStore& credentials, Placeholders placeholders);

private:
    /// The screen's own view model.
    virtual FetchedRecords& fetched() const = 0;

    platform::CredentialStore& credentials_;
    const Placeholders placeholders_;
};

}  // namespace larkspan::presentation
