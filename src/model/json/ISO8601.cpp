#include "model/json/ISO8601.h"

#include <chrono>
#include <cstdio>

namespace larkspan::model {

namespace {

using namespace std::chrono;

/// Reads a text from its front; every operation returns whether it found what it was asked for.
class Scanner {
public:
    explicit Scanner(std::string_view text)
        : rest_(text)
    {
    }

    bool atEnd() const { return rest_.empty(); }

    bool take(char expected)
    {
        if (!rest_.starts_with(expected)) return false;
        rest_.remove_prefix(1);
        return true;
    }

    /// Exactly `count` digits, as a number of at most `largest`.
    std::optional<int> number(std::size_t count, int largest)
    {
        if (rest_.size() < count) return std::nullopt;
        int value = 0;
        for (const char letter : rest_.substr(0, count)) {
            if (!isDigit(letter)) return std::nullopt;
            value = value * 10 + (letter - '0');
        }
        rest_.remove_prefix(count);
        if (value > largest) return std::nullopt;
        return value;
    }

    std::optional<int> digit()
    {
        if (rest_.empty() || !isDigit(rest_.front())) return std::nullopt;
        const int value = rest_.front() - '0';
        rest_.remove_prefix(1);
        return value;
    }

private:
    static bool isDigit(char letter) { return letter >= '0' && letter <= '9'; }

    std::string_view rest_;
};

std::optional<sys_days> readDate(Scanner& scanner)
{
    const auto yearNumber = scanner.number(4, 9999);
    if (!yearNumber || !scanner.take('-')) return std::nullopt;
    const auto monthNumber = scanner.number(2, 12);
    if (!monthNumber || !scanner.take('-')) return std::nullopt;
    const auto dayNumber = scanner.number(2, 31);
    if (!dayNumber) return std::nullopt;

    const year_month_day date{
        year{*yearNumber}, month{static_cast<unsigned>(*monthNumber)}, day{static_cast<unsigned>(*dayNumber)}};
    if (!date.ok()) return std::nullopt;
    return sys_days{date};
}

std::optional<seconds> readHoursAndMinutes(Scanner& scanner)
{
    const auto hour = scanner.number(2, 23);
    if (!hour || !scanner.take(':')) return std::nullopt;
    const auto minute = scanner.number(2, 59);
    if (!minute) return std::nullopt;
    return hours{*hour} + minutes{*minute};
}

/// Second 60 is refused, since `sys_time` has no leap seconds.
std::optional<seconds> readTimeOfDay(Scanner& scanner)
{
    const auto hoursAndMinutes = readHoursAndMinutes(scanner);
    if (!hoursAndMinutes || !scanner.take(':')) return std::nullopt;
    const auto second = scanner.number(2, 59);
    if (!second) return std::nullopt;
    return *hoursAndMinutes + seconds{*second};
}

std::optional<milliseconds> readFraction(Scanner& scanner)
{
    if (!scanner.take('.')) return milliseconds{0};
    auto next = scanner.digit();
    if (!next) return std::nullopt;

    milliseconds fraction{0};
    for (int weight = 100; next; weight /= 10, next = scanner.digit()) fraction += milliseconds{*next * weight};
    return fraction;
}

std::optional<seconds> readOffset(Scanner& scanner)
{
    if (scanner.take('Z')) return seconds{0};
    if (scanner.take('+')) return readHoursAndMinutes(scanner);
    if (!scanner.take('-')) return std::nullopt;
    const auto west = readHoursAndMinutes(scanner);
    if (!west) return std::nullopt;
    return -*west;
}

}  // namespace

std::optional<support::Time> readISO8601(std::string_view text)
{
    Scanner scanner(text);
    const auto date = readDate(scanner);
    if (!date || !scanner.take('T')) return std::nullopt;
    const auto timeOfDay = readTimeOfDay(scanner);
    if (!timeOfDay) return std::nullopt;
    const auto fraction = readFraction(scanner);
    if (!fraction) return std::nullopt;
    const auto offset = readOffset(scanner);
    if (!offset || !scanner.atEnd()) return std::nullopt;
    return *date + *timeOfDay + *fraction - *offset;
}

std::string writeISO8601(support::Time time)
{
    const auto midnight = floor<days>(time);
    const year_month_day date{midnight};
    const hh_mm_ss timeOfDay{floor<seconds>(time - midnight)};
    char text[64];
    const int length = std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(date.year()),
        static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
        static_cast<int>(timeOfDay.hours().count()), static_cast<int>(timeOfDay.minutes().count()),
        static_cast<int>(timeOfDay.seconds().count()));
    return {text, static_cast<std::size_t>(length)};
}

}  // namespace larkspan::model
