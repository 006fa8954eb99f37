// Moments as the service writes them, and those that are written to it.

#include <string>

#include "Bytes.h"
#include "Target.h"
#include "model/json/ISO8601.h"

using namespace larkspan;
using fuzz::require;
using namespace std::chrono_literals;

namespace {

constexpr support::Time firstMoment{std::chrono::sys_days{std::chrono::year{0} / 1 / 1}};
constexpr support::Time afterLastMoment{std::chrono::sys_days{std::chrono::year{10'000} / 1 / 1}};

bool isWritable(support::Time time)
{
    return time >= firstMoment && time < afterLastMoment;
}

void checkWriting(support::Time time)
{
    const auto seconds = std::chrono::floor<std::chrono::seconds>(time);
    const auto text = model::writeISO8601(time);
    require(text.size() == 20, "a written moment has twenty characters");
    require(model::readISO8601(text) == seconds, "a written moment reads back, in whole seconds");
}

void checkReading(const std::string& text)
{
    const auto time = model::readISO8601(text);
    if (!time) return;
    require(*time > firstMoment - 24h && *time < afterLastMoment + 24h, "an offset moves a moment by less than a day");
    require(text.size() >= 20 && text[10] == 'T', "a moment has a day and a time");
    if (isWritable(*time)) checkWriting(*time);
    if (!text.ends_with('Z')) return;

    const auto local = text.substr(0, text.size() - 1);
    require(model::readISO8601(local + "+00:00") == time, "Z is the offset of zero");
    require(model::readISO8601(local + "+02:00") == *time - 2h, "an offset to the east is an earlier moment");
    require(model::readISO8601(local + "-02:00") == *time + 2h, "an offset to the west is a later moment");
    if (text.size() == 20) {
        require(model::writeISO8601(*time) == text, "a moment of whole seconds is written as it was read");
        require(model::readISO8601(local + ".9999Z") == *time + 999ms, "a fraction is cut");
    }
    require(!model::readISO8601(text + "Z") && !model::readISO8601(local), "a moment has one zone");
}

}  // namespace

FUZZ_TARGET(dates, input)
{
    checkReading(std::string(input));
    const auto range = static_cast<std::uint64_t>((afterLastMoment - firstMoment).count());
    checkWriting(firstMoment + std::chrono::milliseconds(fuzz::Bytes(input).number() % range));
}
