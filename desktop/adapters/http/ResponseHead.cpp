#include "adapters/http/ResponseHead.h"

#include <algorithm>
#include <cctype>
#include <ranges>

namespace larkspan::adapters {

namespace {

constexpr std::size_t largestSize = 256 * 1024;
constexpr std::string_view lengthHeader = "content-length:";

bool startsWith(std::string_view line, std::string_view lowerCaseStart)
{
    const auto lower = [](unsigned char character) { return std::tolower(character); };
    return std::ranges::equal(line.substr(0, lowerCaseStart.size()), lowerCaseStart, {}, lower);
}

std::string_view withoutBlanks(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

bool hasNoBody(std::string_view statusLine)
{
    const auto space = statusLine.find(' ');
    const auto status = space == std::string_view::npos ? "" : statusLine.substr(space + 1, 3);
    return status == "204" || status == "304";
}

}  // namespace

void ResponseHead::read(std::string_view line)
{
    size_ += line.size();
    if (startsWith(line, "http/")) {
        isWhole_ = false;
        tellsLength_ = hasNoBody(line);
        length_.reset();
    } else if (startsWith(line, lengthHeader)) {
        tellsLength_ = true;
        readLength(line.substr(lengthHeader.size()));
    } else if (startsWith(line, "transfer-encoding:")) {
        tellsLength_ = true;
    } else if (line == "\r\n" || line == "\n") {
        isWhole_ = true;
    }
}

/// A sender may state the length in several headers, or several times in one.
void ResponseHead::readLength(std::string_view values)
{
    for (const auto part : values | std::views::split(',')) {
        const auto length = withoutBlanks({part.begin(), part.end()});
        if (!length_) length_ = length;
        hasTwoLengths_ = hasTwoLengths_ || length != *length_;
    }
}

bool ResponseHead::isAcceptable() const
{
    return size_ <= largestSize && !hasTwoLengths_;
}

}  // namespace larkspan::adapters
