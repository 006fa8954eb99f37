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

/// The screen of a fetched list: its state, its texts, and its refresh. Main thread only.
class ListScreen : public support::Observable {
public:
    virtual ~ListScreen() = default;

    /// Calls `observer` before anything changes that the list shows, or what stands in front of it.
    [[nodiscard]] virtual support::Subscriptions observe(const std::function<void()>& observer);

    /// Called when the list becomes visible.
    void appear() { fetched().load(); }
    /// Loads because the user asked for it, which allows the credential store to show a prompt.
    void refresh();

    Content content() const { return fetched().content(); }
    /// The placeholder in place of the list; empty while there are records.
    Placeholder placeholder() const;
    /// Tells of what has failed besides; null for a list that has nothing to tell.
    virtual FailureAlert* alert() const { return nullptr; }

    /// Whether leaving the list would lose text that was typed in front of it.
    bool hasUnsavedText() const;
    /// Whether the list must not be removed automatically: text would be lost, or an action has not ended.
    virtual bool isHeld() const;
    /// As `GuardedScreen::asksBefore`, for the screens in front of the list.
    bool asksBefore(const std::function<void()>& leave);

protected:
    ListScreen(platform::CredentialStore& credentials, Placeholders placeholders);

private:
    /// The screen's own view model.
    virtual FetchedRecords& fetched() const = 0;
    /// The screens with typed text in front of the list; null for one that is not open.
    virtual std::vector<std::shared_ptr<GuardedScreen>> inFront() const { return {}; }

    platform::CredentialStore& credentials_;
    const Placeholders placeholders_;
};

}  // namespace larkspan::presentation
