#include "peers/VirtualDisplay.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <stdexcept>

namespace larkspan::peers {

VirtualDisplay::VirtualDisplay()
{
    std::array<int, 2> answer{};
    if (pipe(answer.data()) != 0) throw std::runtime_error("no pipe for the X server's answer");
    const auto answerArgument = std::to_string(answer[1]);
    server_ = fork();
    if (server_ == 0) {
        // A test that crashes must leave no server running.
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        close(answer[0]);
        execlp("Xvfb", "Xvfb", "-displayfd", answerArgument.c_str(), "-screen", "0", "1280x900x24", "-nolisten", "tcp",
            nullptr);
        _exit(127);
    }
    close(answer[1]);
    std::string number;
    char character = 0;
    while (read(answer[0], &character, 1) == 1 && character != '\n') number += character;
    close(answer[0]);
    if (number.empty()) throw std::runtime_error("Xvfb doesn't start");
    setenv("DISPLAY", (":" + number).c_str(), 1);
    setenv("QT_QPA_PLATFORM", "xcb", 1);
}

VirtualDisplay::~VirtualDisplay()
{
    kill(server_, SIGTERM);
    waitpid(server_, nullptr, 0);
}

}  // namespace larkspan::peers
