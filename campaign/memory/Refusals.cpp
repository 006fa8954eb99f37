#include "memory/Refusals.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <stdexcept>

#include "memory/Allocations.h"
#include "support/FatalError.h"

namespace larkspan::campaign {

namespace {

constexpr const char* sentence = "larkspan: fatal: There is no memory left.\n";

[[noreturn]] void runRefused(const Subject& subject, std::size_t refused, int standardError)
{
    const rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
    ::dup2(standardError, STDERR_FILENO);
    support::endWhenMemoryRunsOut();
    {
        const Allocations allocations(refused);
        subject.run();
    }
    // What was refused must not have spoilt anything.
    subject.run();
    ::_exit(0);
}

std::string read(int end)
{
    std::string text;
    std::array<char, 512> part{};
    while (const auto count = ::read(end, part.data(), part.size())) {
        if (count < 0) break;
        text.append(part.data(), static_cast<std::size_t>(count));
    }
    return text;
}

}  // namespace

std::size_t requestsOf(const Subject& subject)
{
    // The first run makes what is made once.
    subject.run();
    const Allocations allocations;
    subject.run();
    return allocations.count();
}

std::vector<std::string> refusalFailures(const Subject& subject, std::size_t refused)
{
    std::array<int, 2> pipe{};
    if (::pipe(pipe.data()) != 0) throw std::runtime_error("there is no pipe");
    const auto child = ::fork();
    if (child == 0) runRefused(subject, refused, pipe[1]);
    ::close(pipe[1]);
    const auto said = read(pipe[0]);
    ::close(pipe[0]);
    int status = 0;
    ::waitpid(child, &status, 0);

    const bool goesOn = WIFEXITED(status) && WEXITSTATUS(status) == 0 && said.empty();
    const bool endsInWords = WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT && said == sentence;
    if (goesOn || endsInWords) return {};
    const auto end = WIFSIGNALED(status) ? "signal " + std::to_string(WTERMSIG(status))
                                         : "code " + std::to_string(WEXITSTATUS(status));
    return {"It ended with " + end + " and \"" + said + "\"."};
}

}  // namespace larkspan::campaign
