#include "stage/Cells.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <exception>
#include <iostream>
#include <thread>

#include "json/Json.h"

namespace larkspan::campaign {

namespace {

/// The same on every machine, so that the fixed part is.
std::uint32_t fingerprint(std::string_view text)
{
    std::uint32_t hash = 2'166'136'261U;
    for (const unsigned char byte : text) hash = (hash ^ byte) * 16'777'619U;
    return hash;
}

std::vector<std::string> played(const Cell& cell)
{
    try {
        return cell.play();
    } catch (const std::exception& error) {
        return {std::string("The cell could not be played: ") + error.what()};
    }
}

}  // namespace

Selection::Selection(int count, char** arguments, unsigned stride)
    : stride_(stride)
{
    const std::vector<std::string> words(arguments + std::min(count, 1), arguments + count);
    isPart_ = words.size() > 1 && words[1] == "part";
    if (words.size() > 2) text_ = words[2];
}

bool Selection::isMeant(std::string_view name) const
{
    if (!text_.empty()) return name.find(text_) != std::string_view::npos;
    return !isPart_ || fingerprint(name) % stride_ == 0;
}

void Report::add(const std::string& name, const std::vector<std::string>& failures)
{
    const auto line = simulator::textOf(simulator::Json::object({{"cell", name}, {"failures", failures}}));
    const std::scoped_lock lock(mutex_);
    std::cout << line << std::endl;
}

void play(const std::vector<Cell>& cells, const Selection& selection, Report& report, unsigned atOnce)
{
    std::atomic<std::size_t> next{0};
    const auto work = [&] {
        for (auto at = next++; at < cells.size(); at = next++) {
            const auto& cell = cells[at];
            if (selection.isMeant(cell.name)) report.add(cell.name, played(cell));
        }
    };
    std::vector<std::jthread> workers;
    for (unsigned worker = 0; worker < atOnce; ++worker) workers.emplace_back(work);
}

}  // namespace larkspan::campaign
