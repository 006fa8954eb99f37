#pragma once

#include <QDBusConnection>
#include <QDeadlineTimer>
#include <QObject>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "adapters/PackageKitTransaction.h"
#include "platform/Updater.h"

namespace larkspan::adapters {

/// Updates by the distribution's packages: asks PackageKit on the system bus, which also installs them. A check that
/// starts while another one runs gets the same answer. A destroyed updater calls no callback.
class PackageKitUpdater final : public QObject, public platform::Updater {
    Q_OBJECT

public:
    explicit PackageKitUpdater(
        QDBusConnection systemBus, std::chrono::milliseconds deadline = std::chrono::seconds(60));

    void check(support::UniqueFunction<void(platform::UpdateCheck)> complete) override;

private:
    using End = PackageKitTransaction::End;
    using Next = std::function<void(End end, const PackageKitTransaction& transaction)>;

    void begin();
    void findInstalled();
    void refresh();
    void findUpdate();
    void answer(const platform::UpdateCheck& found);
    void run(const PackageKitTransaction::Work& work, std::chrono::milliseconds deadline, Next next);
    std::chrono::milliseconds timeLeft() const;

    QDBusConnection bus_;
    std::chrono::milliseconds deadline_;
    QDeadlineTimer end_;
    std::string installed_;
    std::vector<support::UniqueFunction<void(platform::UpdateCheck)>> waiting_;
};

}  // namespace larkspan::adapters
