#include "presentation/screens/ListScreen.h"

#include <algorithm>
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

bool ListScreen::hasUnsavedText() const
{
    return std::ranges::any_of(inFront(), [](const auto& screen) { return screen && screen->hasUnsavedText(); });
}

bool ListScreen::isHeld() const
{
    return std::ranges::any_of(inFront(), [](const auto& screen) { return screen && screen->isHeld(); });
}

bool ListScreen::asksBefore(const std::function<void()>& leave)
{
    return std::ranges::any_of(inFront(), [&leave](const auto& screen) { return screen && screen->asksBefore(leave); });
}

Placeholder ListScreen::placeholder() const
{
    return placeholderOf(content(), placeholders_, fetched().failureText());
}

}  // namespace larkspan::presentation
