// Starts a program and prints the milliseconds until its window is first on the screen or, with an area, until that
// area has stopped changing. It reads the screen, so it needs no help of the program and treats all programs alike.
//
// usage: larkspan-bench-first-frame [--rest X Y WIDTH HEIGHT] PROGRAM [ARGUMENT]...

#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

struct Area {
    std::int16_t x;
    std::int16_t y;
    std::uint16_t width;
    std::uint16_t height;
};

/// The screen, painted in a colour that no window has in its centre.
class Screen {
public:
    using Picture = std::vector<std::uint8_t>;

    Screen()
        : connection_(xcb_connect(nullptr, nullptr))
    {
        if (xcb_connection_has_error(connection_.get())) throw std::runtime_error("there is no X display");
        screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data;
        const std::uint32_t magenta = 0xFF00FF;
        xcb_change_window_attributes(connection_.get(), screen_->root, XCB_CW_BACK_PIXEL, &magenta);
        xcb_clear_area(connection_.get(), 0, screen_->root, 0, 0, 0, 0);
    }

    Area middle() const
    {
        return {static_cast<std::int16_t>(screen_->width_in_pixels / 2),
            static_cast<std::int16_t>(screen_->height_in_pixels / 2), 1, 1};
    }

    Picture picture(Area area) const
    {
        const auto asked = xcb_get_image(
            connection_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, screen_->root, area.x, area.y, area.width, area.height, ~0U);
        const std::unique_ptr<xcb_get_image_reply_t, Free> image(
            xcb_get_image_reply(connection_.get(), asked, nullptr));
        if (!image) throw std::runtime_error("the screen cannot be read");
        const auto* bytes = xcb_get_image_data(image.get());
        return {bytes, bytes + xcb_get_image_data_length(image.get())};
    }

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    struct Free {
        void operator()(void* memory) const { std::free(memory); }
    };

    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    xcb_screen_t* screen_ = nullptr;
};

/// A program that runs until this object is destroyed.
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

double milliseconds(Clock::duration time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

void awaitNextLook(Program& program, Clock::time_point start)
{
    if (program.hasEnded()) throw std::runtime_error("the program ended before it showed what is waited for");
    if (Clock::now() - start > 60s) throw std::runtime_error("what is waited for did not come within a minute");
    std::this_thread::sleep_for(500us);
}

double millisecondsToFirstFrame(char** command)
{
    const Screen screen;
    const auto blank = screen.picture(screen.middle());
    const auto start = Clock::now();
    Program program(command);
    while (screen.picture(screen.middle()) == blank) awaitNextLook(program, start);
    return milliseconds(Clock::now() - start);
}

/// An area that has not changed for this long is at rest. A busy indicator moves more often.
constexpr auto rest = 1s;

double millisecondsToRest(Area area, char** command)
{
    const Screen screen;
    const auto blank = screen.picture(area);
    const auto start = Clock::now();
    Program program(command);
    auto seen = blank;
    auto changed = start;
    while (seen == blank || Clock::now() - changed < rest) {
        if (auto now = screen.picture(area); now != seen) {
            changed = Clock::now();
            seen = std::move(now);
        }
        awaitNextLook(program, start);
    }
    return milliseconds(changed - start);
}

template <class Number>
Number numberIn(std::string_view text)
{
    Number number = 0;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), number);
    if (error != std::errc() || end != text.end()) throw std::runtime_error(std::string(text) + " is no number here");
    return number;
}

double measured(int count, char** arguments)
{
    if (std::string_view(arguments[0]) != "--rest") return millisecondsToFirstFrame(arguments);
    if (count < 6) throw std::runtime_error("--rest wants X, Y, WIDTH, HEIGHT and a program");
    const Area area{numberIn<std::int16_t>(arguments[1]), numberIn<std::int16_t>(arguments[2]),
        numberIn<std::uint16_t>(arguments[3]), numberIn<std::uint16_t>(arguments[4])};
    return millisecondsToRest(area, arguments + 5);
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fputs("usage: larkspan-bench-first-frame [--rest X Y WIDTH HEIGHT] PROGRAM [ARGUMENT]...\n", stderr);
        return 2;
    }
    try {
        std::printf("%.2f\n", measured(argc - 1, argv + 1));
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "larkspan-bench-first-frame: %s\n", error.what());
        return 1;
    }
    return 0;
}
