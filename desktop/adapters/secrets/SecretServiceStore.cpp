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

SecretServiceStore::SecretServiceStore(std::chrono::milliseconds patience, Prompts prompts)
    : stop_(std::make_unique<GLibStop>())
    , session_(std::make_unique<SecretServiceSession>(*stop_, patience))
    , prompts_(prompts)
{
}

SecretServiceStore::~SecretServiceStore() = default;

void SecretServiceStore::open()
{
    const SecretServiceSession::Conversation conversation(*session_, std::chrono::seconds(1));
}

std::optional<std::string> SecretServiceStore::find(const platform::CredentialItem& item)
{
    const SecretServiceSession::Conversation conversation(*session_);
    if (!session_->isOpen()) return std::nullopt;
    if (auto secret = findWhereItWas(item)) return secret;

    session_->forgetChanges();
    auto found = session_->search(item);
    if (found.unlocked.empty()) {
        if (found.locked.empty() || prompts_ == Prompts::never || !mayPrompt_) return std::nullopt;
        if (!unlock(found.locked.front())) return std::nullopt;
        found = session_->search(item);
        if (found.unlocked.empty()) return std::nullopt;
    }
    mayPrompt_ = true;
    lastPlace_ = {std::string(item.service), std::string(item.account), changedLast(*session_, found.unlocked)};
    return session_->secret(lastPlace_->path);
}

// Each request reads the key, and the keyring has hardly ever changed since the previous request.
std::optional<std::string> SecretServiceStore::findWhereItWas(const platform::CredentialItem& item)
{
    if (!lastPlace_ || lastPlace_->service != item.service || lastPlace_->account != item.account) return std::nullopt;
    if (session_->hasChanges()) return std::nullopt;
    auto secret = session_->secret(lastPlace_->path);
    // The keyring may have changed during the call, so that another item counts now.
    if (!secret || session_->hasChanges()) return std::nullopt;
    mayPrompt_ = true;
    return secret;
}

bool SecretServiceStore::add(const platform::CredentialItem& item, const std::string& secret)
{
    const SecretServiceSession::Conversation conversation(*session_);
    if (!session_->isOpen()) return false;

    bool hasPrompted = false;
    const auto collection = session_->defaultCollection([&] { return hasPrompted = mayPrompt_.exchange(false); });
    if (hasPrompted) mayPrompt_ = collection.has_value();
    if (!collection || !unlock(*collection)) return false;
    // An item that could not be removed from a locked keyring might be found in place of this one later.
    return session_->search(item).locked.empty() && session_->create(*collection, item, secret);
}

void SecretServiceStore::remove(const platform::CredentialItem& item)
{
    mayPrompt_ = true;
    const SecretServiceSession::Conversation conversation(*session_);
    if (!session_->isOpen()) return;

    const auto found = session_->search(item);
    for (const auto& unlocked : found.unlocked) session_->remove(unlocked);
    for (const auto& locked : found.locked) {
        if (unlock(locked)) session_->remove(locked);
    }
}

void SecretServiceStore::stop()
{
    stop_->request();
}

bool SecretServiceStore::unlock(const std::string& path)
{
    bool hasPrompted = false;
    const bool isUnlocked = session_->unlock(path, [&] { return hasPrompted = mayPrompt_.exchange(false); });
    // Actions of the user during the prompt do not allow another one.
    if (hasPrompted) mayPrompt_ = isUnlocked;
    return isUnlocked;
}

}  // namespace larkspan::adapters
