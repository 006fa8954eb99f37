#include "adapters/X11Activation.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QWindow>

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>

namespace larkspan::adapters {

namespace {

struct Freeing {
    void operator()(void* reply) const { std::free(reply); }
};

template <typename Reply>
using ReplyPointer = std::unique_ptr<Reply, Freeing>;

xcb_connection_t* connection()
{
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_window_t rootOf(xcb_connection_t* x11, xcb_window_t window)
{
    const ReplyPointer<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(x11, xcb_get_geometry(x11, window), nullptr));
    return geometry ? geometry->root : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

xcb_atom_t atom(xcb_connection_t* x11, std::string_view name)
{
    const auto request = xcb_intern_atom(x11, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const ReplyPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(x11, request, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

xcb_client_message_event_t message(xcb_window_t window, xcb_atom_t type, std::uint8_t format)
{
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = format;
    message.window = window;
    message.type = type;
    return message;
}

void send(xcb_connection_t* x11, xcb_window_t root, std::uint32_t mask, const xcb_client_message_event_t& message)
{
    xcb_send_event(x11, 0, root, mask, reinterpret_cast<const char*>(&message));
}

}  // namespace

bool X11Activation::isNeeded()
{
    return connection() != nullptr;
}

void X11Activation::activate(const QWindow& window)
{
    auto* const x11 = connection();
    if (!x11) return;
    constexpr std::uint32_t directActionOfTheUser = 2;
    const auto id = static_cast<xcb_window_t>(window.winId());
    auto request = message(id, atom(x11, "_NET_ACTIVE_WINDOW"), 32);
    request.data.data32[0] = directActionOfTheUser;
    request.data.data32[1] = XCB_CURRENT_TIME;
    send(x11, rootOf(x11, id), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT, request);
    xcb_flush(x11);
}

void X11Activation::endLaunch(const QWindow& window, const QString& activationToken)
{
    auto* const x11 = connection();
    if (!x11 || activationToken.isEmpty()) return;
    const auto id = static_cast<xcb_window_t>(window.winId());
    const auto root = rootOf(x11, id);

    // The text is sent with its terminator, in pieces of the size of a message.
    const QByteArray text = "remove: ID=" + activationToken.toUtf8();
    const auto length = static_cast<std::size_t>(text.size()) + 1;
    auto piece = message(id, atom(x11, "_NET_STARTUP_INFO_BEGIN"), 8);
    const auto continuation = atom(x11, "_NET_STARTUP_INFO");
    for (std::size_t sent = 0; sent < length; sent += sizeof piece.data.data8) {
        const auto count = std::min(sizeof piece.data.data8, length - sent);
        std::memset(piece.data.data8, 0, sizeof piece.data.data8);
        std::memcpy(piece.data.data8, text.constData() + sent, count);
        send(x11, root, XCB_EVENT_MASK_PROPERTY_CHANGE, piece);
        piece.type = continuation;
    }
    xcb_flush(x11);
}

}  // namespace larkspan::adapters
