#include "presentation/ListScreen.h"

#include <utility>

namespace larkspan::presentation {

ListScreen::ListScreen(platform::CredentialStore& credentials, Placeholders placeholders)
    : credentials_(credentials)
    , placeholders_(std::move(placeholders))
{
}

support::Subscriptions ListScreen::observe(const std::function<void()>& observer)
{
    return {objectWillChange(observer), fetched().objectWillChange(observer)};
}

void ListScreen::refresh()
{
    credentials_.allowPromptAgain();
    fetched().load();
}

Placeholder ListScreen::placeholder() const
{
    return placeholderOf(content(), placeholders_, fetched().failureText());
}

}  // namespace larkspan::presentation
