// The heads of answers, line by line: what they say of the body's end, and that one too large or ambiguous is refused.

#include <algorithm>
#include <string>

#include "Target.h"
#include "adapters/http/ResponseHead.h"

using namespace larkspan;
using fuzz::require;

namespace {

std::string raised(std::string_view line)
{
    std::string text(line);
    for (char& letter : text) {
        if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
    }
    return text;
}

bool areAlike(const adapters::ResponseHead& one, const adapters::ResponseHead& other)
{
    return one.isWhole() == other.isWhole() && one.tellsLength() == other.tellsLength()
        && one.isAcceptable() == other.isAcceptable();
}

void checkAfterwards(adapters::ResponseHead head)
{
    const auto before = head;
    head.read("X-Unknown: 1\r\n");
    require(areAlike(head, before), "an unknown header changes nothing");
    auto twofold = before;
    twofold.read("Content-Length: 1\r\n");
    twofold.read("content-length: 2\r\n");
    require(twofold.tellsLength() && !twofold.isAcceptable(), "two lengths are refused");
    auto next = before;
    next.read("HTTP/1.1 200 OK\r\n");
    require(!next.isWhole() && !next.tellsLength(), "a status line starts a new head");
    next.read("\r\n");
    require(next.isWhole(), "an empty line ends a head");
    next.read("X: " + std::string(256 * 1024, 'a'));
    require(!next.isAcceptable(), "a giant head is refused");
}

}  // namespace

FUZZ_TARGET(response_head, input)
{
    adapters::ResponseHead head;
    adapters::ResponseHead loud;
    bool wasAcceptable = true;
    while (!input.empty()) {
        const auto line = input.substr(0, std::min(input.find('\n'), input.size() - 1) + 1);
        input.remove_prefix(line.size());
        head.read(line);
        loud.read(raised(line));
        require(wasAcceptable || !head.isAcceptable(), "what was refused stays so");
        require(head.isWhole() == loud.isWhole() && head.tellsLength() == loud.tellsLength(),
            "names of headers have no case");
        wasAcceptable = head.isAcceptable();
    }
    checkAfterwards(head);
}
