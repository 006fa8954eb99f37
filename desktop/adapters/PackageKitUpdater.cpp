#include "adapters/PackageKitUpdater.h"

#include <QStringList>
#include <QTimer>

#include <utility>

namespace larkspan::adapters {

namespace {

using Finding = platform::UpdateCheck::Finding;

// PackageKit's filters, as sets of bits.
constexpr qulonglong everything = 1U << 1U;
constexpr qulonglong installedOnly = 1U << 2U;

}  // namespace

PackageKitUpdater::PackageKitUpdater(QDBusConnection systemBus, std::chrono::milliseconds deadline)
    : bus_(std::move(systemBus))
    , deadline_(deadline)
{
}

void PackageKitUpdater::check(support::UniqueFunction<void(platform::UpdateCheck)> complete)
{
    waiting_.push_back(std::move(complete));
    if (waiting_.size() == 1) begin();
}

void PackageKitUpdater::begin()
{
    end_.setRemainingTime(deadline_);
    if (bus_.isConnected()) {
        findInstalled();
    } else {
        QTimer::singleShot(0, this, [this] { answer({Finding::noPackageService}); });
    }
}

void PackageKitUpdater::findInstalled()
{
    run({"Resolve", {installedOnly, QStringList{"larkspan"}}}, timeLeft(), [this](End end, const auto& resolved) {
        if (end == End::noService) return answer({Finding::noPackageService});
        if (end == End::failed) return answer({Finding::failed});
        if (resolved.installedVersion().isEmpty()) return answer({Finding::notPackaged});
        installed_ = resolved.installedVersion().toStdString();
        refresh();
    });
}

void PackageKitUpdater::refresh()
{
    constexpr bool evenIfItIsFresh = false;
    // Goes on even if this fails: without access to the archive, what the system knows already is the best answer.
    run({"RefreshCache", {evenIfItIsFresh}}, timeLeft() / 2, [this](End, const auto&) { findUpdate(); });
}

void PackageKitUpdater::findUpdate()
{
    run({"GetUpdates", {everything}}, timeLeft(), [this](End end, const auto& updates) {
        if (end != End::succeeded) return answer({Finding::failed, installed_});
        const auto available = updates.availableVersion().toStdString();
        if (available.empty()) return answer({Finding::upToDate, installed_});
        answer({Finding::updateAvailable, installed_, available});
    });
}

void PackageKitUpdater::answer(const platform::UpdateCheck& found)
{
    // A callback may ask again at once, or end the program.
    for (auto& complete : std::exchange(waiting_, {})) complete(found);
}

void PackageKitUpdater::run(const PackageKitTransaction::Work& work, std::chrono::milliseconds deadline, Next next)
{
    auto* const transaction = new PackageKitTransaction(bus_, work, deadline, this);
    connect(transaction, &PackageKitTransaction::ended, this, [transaction, next = std::move(next)](End end) {
        transaction->deleteLater();
        next(end, *transaction);
    });
}

std::chrono::milliseconds PackageKitUpdater::timeLeft() const
{
    return std::chrono::milliseconds(end_.remainingTime());
}

}  // namespace larkspan::adapters
