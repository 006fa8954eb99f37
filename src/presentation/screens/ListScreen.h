#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/CredentialStore.h"
#include "presentation/screens/Content.h"
#include "presentation/screens/FailureAlert.h"
#include "presentation/screens/FetchedRecords.h"
#include "presentation/screens/GuardedScreen.h"
#include "support/Observable.h"

namespace larkspan::presentation {

/// The screen of a list that is fetched: which of its states shows, in which words, and what brings it up to date. Main
/// thread only.
class ListScreen : public support::Observable {
public:
    virtual ~ListScreen() = default;

    /// Calls `observer` before anything changes that the list shows, or what stands in front of it.
    [[nodiscard]] virtual support::Subscriptions observe(const std::function<void()>& observer);

    /// The list came into sight.
    void appear() { fetched().load(); }
    /// The user asked for a load. That is worth a prompt of the credential store.
    void refresh();

    Content content() const { return fetched().content(); }
    /// What stands in place of the list; all empty while there is one.
    Placeholder placeholder() const;
    /// Tells of what has failed besides; null for a list that has nothing to tell.
    virtual FailureAlert* alert() const { return nullptr; }

    /// Leaving the list would lose what has been typed in front of it.
    bool hasUnsavedText() const;
    /// The list is not to go by itself: something would be lost with it, or an order has not ended.
    virtual bool isHeld() const;
    /// As `GuardedScreen` has it, for what stands in front of the list.
    bool asksBefore(const std::function<void()>& leave);

protected:
    ListScreen(platform::CredentialStore& credentials, Placeholders placeholders);

private:
    /// The screen's own view model.
    virtual FetchedRecords& fetched() const = 0;
    /// The screens in which one types; null for one that is not there.
    virtual std::vector<std::shared_ptr<GuardedScreen>> inFront() const { return {}; }

    platform::CredentialStore& credentials_;
    const Placeholders placeholders_;
};

}  // namespace larkspan::presentation
