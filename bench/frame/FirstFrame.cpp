// Starts any program and prints the milliseconds until one of its windows first shows something or, with an area, until
// that area of the screen has stopped changing. It reads the screen, so it needs no help of the program and treats all
// programs alike.
//
// usage: larkspan-bench-first-frame [--rest X Y WIDTH HEIGHT] PROGRAM [ARGUMENT]...

#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <array>
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

/// The screen, painted in a colour that fills no window.
class Screen {
public:
    using Picture = std::vector<std::uint8_t>;

    Screen()
        : connection_(xcb_connect(nullptr, nullptr))
    {
        if (xcb_connection_has_error(connection_.get())) throw std::runtime_error("there is no X display");
        screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data;
        const std::uint32_t magenta = 0xFF00FF;
        // Its windows are heard of as they come up.
        const std::array values{magenta, static_cast<std::uint32_t>(XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY)};
        xcb_change_window_attributes(
            connection_.get(), screen_->root, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values.data());
        xcb_clear_area(connection_.get(), 0, screen_->root, 0, 0, 0, 0);
        blank_ = picture({0, 0, screen_->width_in_pixels, 1});
    }

    /// Whether one of the windows that have come up since the screen was made is painted.
    bool showsAWindow()
    {
        while (const Event event{xcb_poll_for_event(connection_.get())}) {
            if ((event->response_type & 0x7F) != XCB_MAP_NOTIFY) continue;
            windows_.push_back(reinterpret_cast<const xcb_map_notify_event_t*>(event.get())->window);
        }
        return std::ranges::any_of(windows_, [this](xcb_window_t window) { return isPainted(window); });
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
    using Event = std::unique_ptr<xcb_generic_event_t, Free>;

    /// Smaller ones are nothing that a person sees.
    static constexpr int leastSize = 50;

    /// A window stays as the screen beneath it until it is painted, so its middle line tells.
    bool isPainted(xcb_window_t window) const
    {
        const auto asked = xcb_get_geometry(connection_.get(), window);
        const std::unique_ptr<xcb_get_geometry_reply_t, Free> place(
            xcb_get_geometry_reply(connection_.get(), asked, nullptr));
        if (!place || place->width < leastSize || place->height < leastSize) return false;
        const int left = std::max<int>(place->x, 0);
        const int width = std::min<int>(place->x + place->width, screen_->width_in_pixels) - left;
        const int middle = place->y + place->height / 2;
        if (width <= 0 || middle < 0 || middle >= screen_->height_in_pixels) return false;
        const auto line = picture(
            {static_cast<std::int16_t>(left), static_cast<std::int16_t>(middle), static_cast<std::uint16_t>(width), 1});
        return !std::equal(line.begin(), line.end(), blank_.begin());
    }

    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    xcb_screen_t* screen_ = nullptr;
    Picture blank_;
    std::vector<xcb_window_t> windows_;
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
    Screen screen;
    const auto start = Clock::now();
    Program program(command);
    while (!screen.showsAWindow()) awaitNextLook(program, start);
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
