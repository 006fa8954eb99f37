#include "adapters/TerminationSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>

namespace larkspan::adapters {

namespace {

constexpr std::array handledSignals{SIGTERM, SIGINT, SIGHUP};

std::atomic<int> signalPipe = -1;
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler must not wait for a lock");

void writeToPipe(int /*signal*/)
{
    const int before = errno;
    const char wake = 0;
    // If the pipe is full, the loop has been woken already.
    [[maybe_unused]] const auto written = write(signalPipe.load(), &wake, sizeof wake);
    errno = before;
}

bool isIgnored(int signal)
{
    struct sigaction current = {};
    return sigaction(signal, nullptr, &current) == 0 && current.sa_handler == SIG_IGN;
}

}  // namespace

TerminationSignals::TerminationSignals(QObject* parent)
    : QObject(parent)
{
    // Without the pipe, the signals keep their default action, which ends the process as well.
    if (pipe2(pipe_.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    signalPipe = pipe_[1];
    notifier_ = std::make_unique<QSocketNotifier>(pipe_[0], QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, &TerminationSignals::drain);

    struct sigaction action = {};
    action.sa_handler = writeToPipe;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    for (const int signal : handledSignals) {
        // A program that was started with nohup has to outlive the terminal.
        if (!isIgnored(signal)) sigaction(signal, &action, nullptr);
    }
}

TerminationSignals::~TerminationSignals()
{
    if (!notifier_) return;
    for (const int signal : handledSignals) {
        if (!isIgnored(signal)) std::signal(signal, SIG_DFL);
    }
    signalPipe = -1;
    notifier_.reset();
    close(pipe_[0]);
    close(pipe_[1]);
}

void TerminationSignals::drain()
{
    std::array<char, 16> wakes{};
    while (read(pipe_[0], wakes.data(), wakes.size()) > 0) {}
    emit requested();
}

}  // namespace larkspan::adapters
