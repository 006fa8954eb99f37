#include "peers/X11Peer.h"

#include <cstdlib>
#include <cstring>
#include <memory>

namespace larkspan::peers {

namespace {

struct Freeing {
    void operator()(void* reply) const { std::free(reply); }
};

template <typename Reply>
using ReplyPointer = std::unique_ptr<Reply, Freeing>;

}  // namespace

X11Peer::X11Peer()
    : connection_(xcb_connect(nullptr, nullptr))
    , root_(xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root)
{
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection_, root_, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(connection_);
}

X11Peer::~X11Peer()
{
    xcb_disconnect(connection_);
}

bool X11Peer::hasWindowManager() const
{
    const auto request = xcb_get_selection_owner(connection_, atom("WM_S0"));
    const ReplyPointer<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection_, request, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

std::optional<X11Peer::State> X11Peer::state(xcb_window_t window) const
{
    const auto value = number(window, "WM_STATE");
    return value ? std::optional(static_cast<State>(*value)) : std::nullopt;
}

xcb_window_t X11Peer::activeWindow() const
{
    return number(root_, "_NET_ACTIVE_WINDOW").value_or(0);
}

void X11Peer::pressClose(xcb_window_t window) const
{
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom("_NET_CLOSE_WINDOW");
    message.data.data32[1] = 2;
    xcb_send_event(connection_, 0, root_, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
        reinterpret_cast<const char*>(&message));
    xcb_flush(connection_);
}

xcb_window_t X11Peer::showWindow()
{
    const auto window = xcb_generate_id(connection_);
    xcb_create_window(connection_, XCB_COPY_FROM_PARENT, window, root_, 0, 0, 300, 200, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_map_window(connection_, window);
    xcb_flush(connection_);
    return window;
}

QStringList X11Peer::endedLaunches()
{
    const auto begin = atom("_NET_STARTUP_INFO_BEGIN");
    const auto more = atom("_NET_STARTUP_INFO");
    while (const ReplyPointer<xcb_generic_event_t> event{xcb_poll_for_event(connection_)}) {
        if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE) continue;
        xcb_client_message_event_t message = {};
        std::memcpy(&message, event.get(), sizeof message);
        if (message.type != begin && message.type != more) continue;
        if (message.type == begin) launchText_.clear();
        launchText_.append(reinterpret_cast<const char*>(message.data.data8), sizeof message.data.data8);
        if (const auto end = launchText_.indexOf('\0'); end >= 0) endedLaunches_ << launchText_.left(end);
    }
    return endedLaunches_;
}

xcb_atom_t X11Peer::atom(const char* name) const
{
    const auto request = xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const ReplyPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection_, request, nullptr));
    return reply->atom;
}

std::optional<std::uint32_t> X11Peer::number(xcb_window_t window, const char* property) const
{
    const auto request = xcb_get_property(connection_, 0, window, atom(property), XCB_ATOM_ANY, 0, 1);
    const ReplyPointer<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection_, request, nullptr));
    if (!reply || xcb_get_property_value_length(reply.get()) < 4) return std::nullopt;
    std::uint32_t value = 0;
    std::memcpy(&value, xcb_get_property_value(reply.get()), sizeof value);
    return value;
}

}  // namespace larkspan::peers
