#include "account/PageContentsSeed.h"

#include <array>

#include "account/HealthWords.h"

namespace larkspan::simulator {

namespace {

using namespace std::chrono_literals;

constexpr std::size_t wholePages = 100;

constexpr std::array groupNames{"API", "Web", "Data"};

constexpr std::array componentNames{"REST API", "Dashboard", "Primary database", "Webhooks", "Sign-in", "Search index",
    "File storage", "Email delivery", "Content delivery", "Background jobs"};

constexpr std::array intervals{60, 30, 300, 120};

constexpr std::array forms{MetricsForm::words, MetricsForm::numbers, MetricsForm::words, MetricsForm::gaps,
    MetricsForm::numbers, MetricsForm::malformed, MetricsForm::words, MetricsForm::empty, MetricsForm::numbers,
    MetricsForm::words, MetricsForm::missing, MetricsForm::noLatency};

/// A day in steps of a quarter of an hour, of five minutes or of one minute.
constexpr std::array sampleCounts{96, 288, 96, 1'440, 96};

struct Check {
    const char* type;
    const char* name;
    const char* target;
};

constexpr std::array<Check, 8> checks{{
    {"http", "health", "https://health.kestrune.example/"},
    {"api", "contract", "https://api.kestrune.example/v2/ping"},
    {"tcp", "port", "tcp.kestrune.example:5432"},
    {"dns", "names", "ns1.kestrune.example"},
    {"smtp", "mail", "mail.kestrune.example:25"},
    {"site", "page", "https://www.kestrune.example/"},
    {"custom", "script", nullptr},
    {nullptr, "heartbeat", nullptr},
}};

PageHealth healthOf(const StatusPage& page)
{
    if (page.status == "degraded") return PageHealth::degraded;
    if (page.status == "down") return PageHealth::majorOutage;
    if (page.status == "maintenance") return PageHealth::maintenance;
    return PageHealth::operational;
}

std::optional<std::string> orNothing(const char* text)
{
    return text ? std::optional<std::string>(text) : std::nullopt;
}

/// Fills an account page by page; `place` counts within a page, numbers run through the whole account.
class Filler {
public:
    Filler(Account& account, support::Time now)
        : account_(account)
        , now_(now)
    {
    }

    void fill(std::size_t index)
    {
        const auto& page = account_.statusPages[index];
        const bool isWhole = index < wholePages;
        const auto firstGroup = account_.componentGroups.size();
        const auto groups = isWhole && index % 5 != 4 ? 2 + index % 2 : 0;
        const auto components = isWhole ? 4 + index % 4 : 1;
        for (std::size_t place = 0; place < groups; ++place) addGroup(page.id, place);
        for (std::size_t place = 0; place < components; ++place) {
            auto& component = addComponent(page.id, index, place);
            const bool standsAlone = groups == 0 || place % 4 == 3;
            if (!standsAlone) component.groupId = account_.componentGroups[firstGroup + place % groups].id;
            addMonitor(component, index);
            if (place == 0) show(healthOf(page), component);
            if (isWhole && place % 3 == 2) addMonitor(component, index);
        }
    }

private:
    void addGroup(const std::string& pageId, std::size_t place)
    {
        auto& group = account_.componentGroups.emplace_back();
        group.id = "group-" + std::to_string(account_.componentGroups.size());
        group.name = groupNames[place % groupNames.size()];
        group.statusPageId = pageId;
        group.listsComponents = place == 0;
    }

    Component& addComponent(const std::string& pageId, std::size_t index, std::size_t place)
    {
        auto& component = account_.components.emplace_back();
        component.id = std::to_string(account_.components.size());
        component.name = componentNames[(index + place) % componentNames.size()];
        if (place % 3 != 2) component.description = component.name + " of production.";
        if (place % 3 == 0) component.url = "https://www.kestrune.example/parts/" + component.id;
        component.state = place % 3 == 1 ? "operational" : "up";
        component.statusPageId = pageId;
        return component;
    }

    void addMonitor(const Component& component, std::size_t index)
    {
        const auto number = account_.monitors.size();
        const auto& check = checks[number % checks.size()];
        auto& monitor = account_.monitors.emplace_back();
        monitor.id = std::to_string(number + 1);
        monitor.name = component.name + ' ' + check.name;
        monitor.type = orNothing(check.type);
        monitor.target = orNothing(check.target);
        // Paused monitors say so; not all of the running ones do.
        if (number % 9 == 5)
            monitor.enabled = false;
        else if (number % 4 != 3)
            monitor.enabled = true;
        if (number % 14 == 2)
            monitor.state = "degraded";
        else if (number % 13 != 11)
            monitor.state = number % 6 == 4 ? "operational" : "up";
        monitor.createdAt = now_ - std::chrono::days(40 + index % 300);
        monitor.updatedAt = now_ - std::chrono::hours(3 + number % 500);
        if (number % 7 != 6) monitor.intervalSeconds = intervals[number % intervals.size()];
        monitor.statusPageId = component.statusPageId;
        monitor.componentId = component.id;
        monitor.metricsForm = forms[number % forms.size()];
        monitor.samplesPerWindow = sampleCounts[number % sampleCounts.size()];
    }

    /// `component` has one monitor, the one added last.
    void show(PageHealth health, Component& component)
    {
        if (health == PageHealth::operational) return;
        const auto words = healthWords(health);
        component.state = words.component;
        account_.monitors.back().state = words.monitor;
        account_.monitors.back().enabled = true;
    }

    Account& account_;
    support::Time now_;
};

}  // namespace

void addPageContents(Account& account, support::Time now)
{
    Filler filler(account, now);
    for (std::size_t index = 0; index < account.statusPages.size(); ++index) filler.fill(index);
    account.issuedIds += account.componentGroups.size() + account.components.size() + account.monitors.size();
}

}  // namespace larkspan::simulator
