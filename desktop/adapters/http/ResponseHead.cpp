#include "adapters/http/ResponseHead.h"

#include <algorithm>
#include <cctype>

namespace larkspan::adapters {

namespace {

constexpr std::size_t largestSize = 256 * 1024;

bool startsWith(std::string_view line, std::string_view lowerCaseStart)
{
    const auto lower = [](unsigned char character) { return std::tolower(character); };
    return std::ranges::equal(line.substr(0, lowerCaseStart.size()), lowerCaseStart, {}, lower);
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
    } else if (startsWith(line, "content-length:") || startsWith(line, "transfer-encoding:")) {
        tellsLength_ = true;
    } else if (line == "\r\n" || line == "\n") {
        isWhole_ = true;
    }
}

bool ResponseHead::isTooLarge() const
{
    return size_ > largestSize;
}

}  // namespace larkspan::adapters
