#include "memory/Growth.h"

#include <malloc.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "memory/LivingAccount.h"

namespace larkspan::campaign {

namespace {

constexpr long mostGrowth = 256L * 1024;
// An event's id is kept for as long as the program runs, since nothing is announced twice.
constexpr long bytesOfAnId = 128;

struct Holdings {
    long residentBytes;
    long bytesInUse;
    long openFiles;
    long threads;
};

long entriesOf(const char* folder)
{
    return std::distance(std::filesystem::directory_iterator(folder), {});
}

Holdings holdings()
{
    // What was freed is the system's again, or it would hide what is not.
    ::malloc_trim(0);
    long size = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> size >> resident;
    return {resident * ::sysconf(_SC_PAGESIZE), static_cast<long>(::mallinfo2().uordblks), entriesOf("/proc/self/fd"),
        entriesOf("/proc/self/task")};
}

}  // namespace

std::vector<std::string> growthFailures(std::size_t cycles)
{
    LivingAccount account;
    // A tenth of them brings every list to its usual size.
    for (std::size_t count = 0; count < cycles / 10; ++count) account.refresh();
    const auto before = holdings();
    const auto noticesBefore = account.noticeCount();
    for (std::size_t count = 0; count < cycles; ++count) account.refresh();
    const auto after = holdings();

    std::vector<std::string> failures;
    const auto announced = static_cast<long>(account.noticeCount() - noticesBefore);
    const auto grown = after.residentBytes - before.residentBytes - announced * bytesOfAnId;
    const auto taken = after.bytesInUse - before.bytesInUse;
    if (grown >= mostGrowth)
        failures.push_back(
            "It grew by " + std::to_string(grown) + " bytes, and what is in use by " + std::to_string(taken) + ".");
    if (after.openFiles != before.openFiles)
        failures.push_back("It had " + std::to_string(before.openFiles) + " open files, and then "
            + std::to_string(after.openFiles) + ".");
    if (after.threads != before.threads)
        failures.push_back(
            "It had " + std::to_string(before.threads) + " threads, and then " + std::to_string(after.threads) + ".");
    if (announced == 0) failures.push_back("Nothing happened in the account.");
    return failures;
}

}  // namespace larkspan::campaign
