#include "account/Seed.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <string>

#include "account/EventSeed.h"
#include "account/PageContentsSeed.h"

namespace larkspan::simulator {

namespace {

using namespace std::chrono_literals;

constexpr std::array<std::string_view, 12> products{"Payments API", "Web Checkout", "Identity", "Mobile Gateway",
    "Search", "Message Relay", "Image Delivery", "Partner Portal", "Reporting", "Data Exports", "Help Center",
    "Edge Network"};

constexpr std::array<std::string_view, 10> companies{"Northwind", "Alder & Finch", "Meridian", "Brightwater",
    "Søndergård", "Kestrel Labs", "Tamarack", "Umbra", "Fjord Freight", "Quill"};

std::string nameOf(std::size_t index)
{
    const auto product = products[index % products.size()];
    const auto company = companies[(index / products.size()) % companies.size()];
    const auto round = index / (products.size() * companies.size());
    std::string name(company);
    name.append(" ").append(product);
    if (round > 0) name.append(" ").append(std::to_string(round + 1));
    return name;
}

std::string slugOf(std::string_view name)
{
    std::string slug;
    for (const char character : name) {
        if (std::isalnum(static_cast<unsigned char>(character))) {
            slug += static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
        } else if (!slug.empty() && slug.back() != '-') {
            slug += '-';
        }
    }
    return slug;
}

PageHealth healthOf(std::size_t index)
{
    if (index % 9 == 4) return PageHealth::degraded;
    if (index % 11 == 7) return PageHealth::majorOutage;
    if (index % 13 == 9) return PageHealth::maintenance;
    return PageHealth::operational;
}

std::vector<PageMetric> metricsOf(std::size_t index)
{
    const auto lost = static_cast<double>(index % 7) * 0.011;
    const auto incidents = static_cast<std::int64_t>(index % 4);
    return {{"7d", 100.0 - lost / 2, incidents / 2}, {"30d", 100.0 - lost, incidents},
        {"90d", 99.98 - lost, incidents + 1}};
}

}  // namespace

std::optional<std::size_t> seedSize(std::string_view name)
{
    struct Named {
        std::string_view name;
        std::size_t size;
    };
    constexpr std::array<Named, 4> sizes{{{"empty", 0}, {"tiny", 3}, {"small", 12}, {"large", 1'000}}};
    const auto named = std::ranges::find(sizes, name, &Named::name);
    if (named != sizes.end()) return named->size;

    constexpr std::size_t most = 100'000;
    std::size_t size = 0;
    const auto* const end = name.data() + name.size();
    const auto [stop, error] = std::from_chars(name.data(), end, size);
    if (error != std::errc{} || stop != end || size > most) return std::nullopt;
    return size;
}

StatusPage seededPage(std::size_t index, std::string name, PageHealth health)
{
    const support::Time firstOfAll = std::chrono::sys_days(std::chrono::year(2023) / 3 / 14) + 9h + 26min + 53s;
    const auto age = static_cast<int>(index % 1'000) * std::chrono::hours(11);

    StatusPage page;
    page.id = "page-" + std::to_string(index + 1);
    page.name = std::move(name);
    page.slug = slugOf(page.name);
    page.url = "https://status.kestrune.example/" + *page.slug;
    if (index % 3 != 2) page.description = "Live status of " + page.name + ".";
    page.setHealth(health);
    page.createdAt = firstOfAll + age;
    page.updatedAt = firstOfAll + age + 417h + 589ms;
    page.metrics = metricsOf(index);
    page.viewsOfMonth = static_cast<std::int64_t>(130 + index * 7'919 % 48'611);
    page.subscribers = static_cast<std::int64_t>(index * 613 % 2'411);
    return page;
}

std::vector<StatusPage> seededPages(std::size_t count)
{
    std::vector<StatusPage> pages;
    pages.reserve(count);
    for (std::size_t index = 0; index < count; ++index)
        pages.push_back(seededPage(index, nameOf(index), healthOf(index)));
    return pages;
}

Account seededAccount(std::size_t pages, support::Time now)
{
    Account account;
    account.statusPages = seededPages(pages);
    account.incidents = seededIncidents(account.statusPages, now);
    account.maintenances = seededMaintenances(account.statusPages, now);
    account.issuedIds = account.incidents.size() + account.maintenances.size();
    addPageContents(account, now);
    account.staff = ordinaryStaff(now);
    return account;
}

}  // namespace larkspan::simulator
