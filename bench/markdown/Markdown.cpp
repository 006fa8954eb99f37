// Measures reading a message's markdown and making its rows, compared with md4c alone on the same text.
//
// usage: larkspan-bench-markdown MESSAGES TIMES      prints three medians in microseconds: reading, reading and making
//                                                    the rows, and md4c alone; the text is that many messages, one
//                                                    behind the other

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <stdexcept>
#include <string>
#include <vector>

#include <md4c.h>

#include "Arguments.h"
#include "Median.h"
#include "messages/markdown/InlineText.h"
#include "messages/markdown/MarkdownBlock.h"
#include "messages/markdown/StatusMarkdownContent.h"

namespace {

using namespace larkspan;

constexpr std::string_view message = R"(# Elevated errors on sign-in

We see **elevated errors** for `POST /session` in *eu-west* since 09:12 UTC. Most sign-ins succeed when they are tried
again; sessions that are already open are not affected. The [status dashboard](https://dashboard.example/d/sign-in?from=now-1h)
has the details, and support is at <support@status.example>.

- EU region only: other regions answer as they always do
- Retrying helps, since two of the three machines are well
- No data is lost & nothing has to be done on your side

## What we do

1. Roll back the release of 08:55
2. Watch the error rate for an hour
3. Write down what we learned

| Region | State | Since |
|:-------|:-----:|------:|
| eu-west | **degraded** | 09:12 |
| us-east | operational | |

> Next update at 11:00, or as soon as there is something to tell.
)";

double cpuMicroseconds()
{
    timespec time{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) / 1e3;
}

template <typename Work>
double medianOf(std::size_t times, Work work)
{
    std::vector<double> taken;
    for (std::size_t count = 0; count < times; ++count) {
        const auto before = cpuMicroseconds();
        work();
        taken.push_back(cpuMicroseconds() - before);
    }
    return bench::median(std::move(taken));
}

/// Reads blocks and inline markup as the rows do; the number of runs shows that all of it was read.
class Reading {
public:
    static std::size_t runsOf(const std::string& source)
    {
        Reading reading;
        for (const auto& block : messages::parseMarkdownBlocks(source)) std::visit(reading, block);
        return reading.runs_;
    }

    void operator()(const messages::MarkdownTable& table)
    {
        read(table.headers);
        for (const auto& row : table.rows) read(row);
    }

    void operator()(const messages::MarkdownUnorderedList& list) { read(list.items); }
    void operator()(const messages::MarkdownOrderedList& list) { read(list.items); }
    void operator()(const auto& block) { read(block.text); }

private:
    void read(const std::vector<std::string>& texts)
    {
        for (const auto& text : texts) read(text);
    }

    void read(const std::string& text) { runs_ += messages::inlineMarkdownText(text).runs.size(); }

    std::size_t runs_ = 0;
};

void readForNobody(const std::string& text)
{
    MD_PARSER parser{};
    parser.flags = MD_FLAG_NOHTML | MD_FLAG_STRIKETHROUGH | MD_FLAG_TABLES;
    parser.enter_block = parser.leave_block = [](MD_BLOCKTYPE, void*, void*) { return 0; };
    parser.enter_span = parser.leave_span = [](MD_SPANTYPE, void*, void*) { return 0; };
    parser.text = [](MD_TEXTTYPE, const MD_CHAR*, MD_SIZE, void*) { return 0; };
    if (md_parse(text.data(), static_cast<MD_SIZE>(text.size()), &parser, nullptr) != 0)
        throw std::runtime_error("md4c cannot read the message");
}

void measure(std::size_t messages, std::size_t times)
{
    std::string text;
    for (; messages > 0; --messages) text += message;
    const messages::StatusMarkdownContent content(text);
    if (content.rows().rows.size() < 14) throw std::runtime_error("the message has lost some of its rows");

    const auto read = medianOf(times, [&text] {
        if (Reading::runsOf(text) < 28) throw std::runtime_error("the message has lost some of its runs");
    });
    const auto rows = medianOf(times, [&content] { content.rows(); });
    const auto bare = medianOf(times, [&text] { readForNobody(text); });
    std::printf("%.3f %.3f %.3f\n", read, rows, bare);
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("usage: larkspan-bench-markdown MESSAGES TIMES\n", stderr);
        return 2;
    }
    try {
        measure(std::max<std::size_t>(larkspan::bench::number(argv[1]), 1),
            std::max<std::size_t>(larkspan::bench::number(argv[2]), 1));
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "larkspan-bench-markdown: %s\n", error.what());
        return 1;
    }
    return 0;
}
