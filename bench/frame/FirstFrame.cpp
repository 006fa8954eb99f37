// Starts a program and says after how many milliseconds its window first stood on the screen. It looks at the
// screen as a person would, so it needs no help of the program and treats all programs alike.
//
// usage: larkspan-bench-first-frame PROGRAM [ARGUMENT]...

#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <thread>

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// The pixel in the middle of the screen, painted in a colour that no window has there.
class MiddleOfScreen {
public:
    MiddleOfScreen()
        : connection_(xcb_connect(nullptr, nullptr))
    {
        if (xcb_connection_has_error(connection_.get())) throw std::runtime_error("there is no X display");
        screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data;
        const std::uint32_t magenta = 0xFF00FF;
        xcb_change_window_attributes(connection_.get(), screen_->root, XCB_CW_BACK_PIXEL, &magenta);
        xcb_clear_area(connection_.get(), 0, screen_->root, 0, 0, 0, 0);
        blank_ = pixel();
    }

    bool isCovered() const { return pixel() != blank_; }

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    struct Free {
        void operator()(void* memory) const { std::free(memory); }
    };

    std::uint32_t pixel() const
    {
        const auto x = static_cast<std::int16_t>(screen_->width_in_pixels / 2);
        const auto y = static_cast<std::int16_t>(screen_->height_in_pixels / 2);
        const auto asked = xcb_get_image(connection_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, screen_->root, x, y, 1, 1, ~0U);
        const std::unique_ptr<xcb_get_image_reply_t, Free> image(
            xcb_get_image_reply(connection_.get(), asked, nullptr));
        if (!image || xcb_get_image_data_length(image.get()) < 3) throw std::runtime_error("the screen cannot be read");
        const auto* bytes = xcb_get_image_data(image.get());
        return static_cast<std::uint32_t>(bytes[0] | bytes[1] << 8 | bytes[2] << 16);
    }

    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    xcb_screen_t* screen_ = nullptr;
    std::uint32_t blank_ = 0;
};

/// A program that runs until this object goes.
class Program {
public:
    explicit Program(char** command)
        : id_(::fork())
    {
        if (id_ == 0) {
            ::execvp(command[0], command);
            ::_exit(127);
        }
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program()
    {
        if (hasEnded()) return;
        ::kill(id_, SIGTERM);
        for (int count = 0; count < 500; ++count) {
            if (hasEnded()) return;
            std::this_thread::sleep_for(10ms);
        }
        ::kill(id_, SIGKILL);
        ::waitpid(id_, nullptr, 0);
    }

    bool hasEnded()
    {
        isGone_ = isGone_ || ::waitpid(id_, nullptr, WNOHANG) == id_;
        return isGone_;
    }

private:
    pid_t id_;
    bool isGone_ = false;
};

double millisecondsToFirstFrame(char** command)
{
    const MiddleOfScreen middle;
    const auto start = Clock::now();
    Program program(command);
    while (!middle.isCovered()) {
        if (program.hasEnded()) throw std::runtime_error("the program ended before it showed a window");
        if (Clock::now() - start > 60s) throw std::runtime_error("no window came within a minute");
        std::this_thread::sleep_for(500us);
    }
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fputs("usage: larkspan-bench-first-frame PROGRAM [ARGUMENT]...\n", stderr);
        return 2;
    }
    try {
        std::printf("%.2f\n", millisecondsToFirstFrame(argv + 1));
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "larkspan-bench-first-frame: %s\n", error.what());
        return 1;
    }
    return 0;
}
