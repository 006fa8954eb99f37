// Memory: twenty thousand cycles over a living account, and each request for memory refused, one at a time, of what
// reads and writes others' texts.

#include "memory/Growth.h"
#include "memory/Refusals.h"
#include "memory/Subjects.h"
#include "stage/Cells.h"

int main(int count, char** arguments)
{
    using namespace larkspan::campaign;
    const Selection selection(count, arguments, 211);
    Report report;
    // A process that has had threads could not be copied with what they hold, so there are none.
    for (const auto& subject : subjects()) {
        const auto requests = requestsOf(subject);
        for (std::size_t refused = 0; refused < requests; ++refused) {
            const auto name = subject.name + ": request " + std::to_string(refused) + " for memory refused";
            if (selection.isMeant(name)) report.add(name, refusalFailures(subject, refused));
        }
    }
    const bool isPart = std::string_view(arguments[2]) == "part";
    report.add("growth", growthFailures(isPart ? 500 : 20'000));
    return 0;
}
