#include "adapters/secrets/SecretServiceStore.h"

#include <string>
#include <vector>

#include "adapters/secrets/SecretServiceSession.h"

namespace larkspan::adapters {

namespace {

std::string changedLast(SecretServiceSession& session, const std::vector<std::string>& items)
{
    if (items.size() == 1) return items.front();
    std::string last;
    guint64 lastTime = 0;
    for (const auto& item : items) {
        const auto time = session.modificationTime(item);
        if (last.empty() || time > lastTime) {
            last = item;
            lastTime = time;
        }
    }
    return last;
}

}  // namespace

SecretServiceStore::SecretServiceStore(std::chrono::milliseconds patience)
    : patience_(patience)
    , stop_(std::make_shared<GLibStop>())
{
}

std::optional<std::string> SecretServiceStore::find(const platform::CredentialItem& item)
{
    SecretServiceSession session(*stop_, patience_);
    if (!session.isOpen()) return std::nullopt;

    auto found = session.search(item);
    if (found.unlocked.empty()) {
        if (found.locked.empty() || !mayPrompt_) return std::nullopt;
        if (!unlock(session, found.locked.front())) return std::nullopt;
        found = session.search(item);
        if (found.unlocked.empty()) return std::nullopt;
    }
    mayPrompt_ = true;
    return session.secret(changedLast(session, found.unlocked));
}

bool SecretServiceStore::add(const platform::CredentialItem& item, const std::string& secret)
{
    SecretServiceSession session(*stop_, patience_);
    if (!session.isOpen()) return false;

    bool hasPrompted = false;
    const auto collection = session.defaultCollection([&] { return hasPrompted = mayPrompt_.exchange(false); });
    if (hasPrompted) mayPrompt_ = collection.has_value();
    return collection && unlock(session, *collection) && session.create(*collection, item, secret);
}

void SecretServiceStore::remove(const platform::CredentialItem& item)
{
    mayPrompt_ = true;
    SecretServiceSession session(*stop_, patience_);
    if (!session.isOpen()) return;

    const auto found = session.search(item);
    for (const auto& unlocked : found.unlocked) session.remove(unlocked);
    for (const auto& locked : found.locked) {
        if (unlock(session, locked)) session.remove(locked);
    }
}

void SecretServiceStore::stop()
{
    stop_->request();
}

bool SecretServiceStore::unlock(SecretServiceSession& session, const std::string& path)
{
    bool hasPrompted = false;
    const bool isUnlocked = session.unlock(path, [&] { return hasPrompted = mayPrompt_.exchange(false); });
    // What the user did while the prompt stood doesn't ask for another one.
    if (hasPrompted) mayPrompt_ = isUnlocked;
    return isUnlocked;
}

}  // namespace larkspan::adapters
