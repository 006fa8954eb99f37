#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <charconv>

#include "FaultServer.h"

namespace larkspan::adapters {

std::optional<std::string> ReceivedRequest::header(std::string_view name) const
{
    for (const auto& header : headers) {
        const auto colon = header.find(':');
        const auto lower = [](unsigned char character) { return std::tolower(character); };
        if (!std::ranges::equal(std::string_view(header).substr(0, colon), name, {}, lower, lower)) continue;
        const auto value = header.find_first_not_of(' ', colon + 1);
        return value == std::string::npos ? "" : header.substr(value);
    }
    return std::nullopt;
}

Conversation::Conversation(int socket, SSL* tls)
    : socket_(socket)
    , tls_(tls, &SSL_free)
{
    SSL_set_fd(tls, socket);
}

Conversation::~Conversation()
{
    ::close(socket_);
}

bool Conversation::write(std::string_view bytes)
{
    if (!isOpen_) return false;
    std::size_t written = 0;
    isOpen_ = SSL_write_ex(tls_.get(), bytes.data(), bytes.size(), &written) == 1;
    return isOpen_;
}

void Conversation::answer(std::string_view status, std::string_view body, std::string_view moreHeaders)
{
    std::string text = "HTTP/1.1 ";
    text.append(status).append("\r\nContent-Length: ").append(std::to_string(body.size())).append("\r\n");
    text.append(moreHeaders).append("\r\n").append(body);
    write(text);
}

void Conversation::close()
{
    if (!isOpen_) return;
    SSL_shutdown(tls_.get());
    cut();
}

void Conversation::cut()
{
    isOpen_ = false;
    shutdown(socket_, SHUT_WR);
    // If closed with bytes unread, the connection would be reset instead of ended.
    std::array<char, 4096> rest;
    while (recv(socket_, rest.data(), rest.size(), 0) > 0) {}
}

void Conversation::reset()
{
    isOpen_ = false;
    const linger atOnce{.l_onoff = 1, .l_linger = 0};
    setsockopt(socket_, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    const int nothing = ::socket(AF_INET, SOCK_STREAM, 0);
    // The descriptor stays in use until the server has stopped using it.
    dup2(nothing, socket_);
    ::close(nothing);
}

void Conversation::hang()
{
    while (readMore()) {}
}

std::optional<ReceivedRequest> Conversation::read()
{
    ReceivedRequest request;
    auto line = isOpen_ ? readLine() : std::nullopt;
    if (!line) return std::nullopt;
    request.line = std::move(*line);
    while ((line = readLine()) && !line->empty()) request.headers.push_back(std::move(*line));
    if (!line) return std::nullopt;

    std::size_t length = 0;
    if (const auto value = request.header("content-length"))
        std::from_chars(value->data(), value->data() + value->size(), length);
    while (buffer_.size() < length)
        if (!readMore()) return std::nullopt;
    request.body = buffer_.substr(0, length);
    buffer_.erase(0, length);
    return request;
}

void Conversation::writeWithoutTls(std::string_view bytes)
{
    send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
}

void Conversation::awaitFirstBytes()
{
    char first = 0;
    recv(socket_, &first, 1, MSG_PEEK);
}

void Conversation::ignore()
{
    std::array<char, 4096> bytes;
    while (recv(socket_, bytes.data(), bytes.size(), 0) > 0) {}
}

void Conversation::interrupt()
{
    shutdown(socket_, SHUT_RDWR);
}

std::optional<std::string> Conversation::readLine()
{
    std::size_t end = 0;
    while ((end = buffer_.find("\r\n")) == std::string::npos)
        if (!readMore()) return std::nullopt;
    auto line = buffer_.substr(0, end);
    buffer_.erase(0, end + 2);
    return line;
}

bool Conversation::readMore()
{
    std::array<char, 4096> bytes;
    std::size_t got = 0;
    if (SSL_read_ex(tls_.get(), bytes.data(), bytes.size(), &got) != 1) isOpen_ = false;
    buffer_.append(bytes.data(), got);
    return isOpen_;
}

}  // namespace larkspan::adapters
