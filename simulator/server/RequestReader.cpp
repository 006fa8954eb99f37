#include "server/RequestReader.h"

#include <boost/beast/http/error.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/http/string_body.hpp>

#include <limits>

namespace larkspan::simulator {

namespace {

namespace http = boost::beast::http;
using boost::system::error_code;

/// A connection as a stream that Beast can read.
class ReadStream {
public:
    explicit ReadStream(Connection& connection)
        : connection_(connection)
    {
    }

    template <typename Buffers>
    std::size_t read_some(const Buffers& buffers, error_code& error)
    {
        const boost::asio::mutable_buffer first = *boost::asio::buffer_sequence_begin(buffers);
        const auto count = connection_.read(first.data(), first.size());
        error = count == 0 ? error_code(http::error::end_of_stream) : error_code();
        return count;
    }

    template <typename Buffers>
    std::size_t read_some(const Buffers& buffers)
    {
        error_code error;
        const auto count = read_some(buffers, error);
        if (error) throw boost::system::system_error(error);
        return count;
    }

private:
    Connection& connection_;
};

Request requestOf(const http::request<http::string_body>& message)
{
    const auto text = [](const auto& from) { return std::string(from.data(), from.size()); };
    Request request{text(message.method_string()), text(message.target()), {}, message.body()};
    for (const auto& field : message) request.headers.emplace_back(text(field.name_string()), text(field.value()));
    return request;
}

}  // namespace

std::optional<Request> RequestReader::next(std::chrono::milliseconds within)
{
    if (buffer_.size() == 0 && !connection_.hasBytes(within)) return std::nullopt;

    ReadStream stream(connection_);
    http::request_parser<http::string_body> parser;
    parser.header_limit(1 << 20);
    parser.body_limit(std::numeric_limits<std::uint64_t>::max());
    error_code error;
    http::read_header(stream, buffer_, parser, error);
    if (error) return std::nullopt;
    if (boost::beast::iequals(parser.get()[http::field::expect], "100-continue")
        && !connection_.write("HTTP/1.1 100 Continue\r\n\r\n"))
        return std::nullopt;
    http::read(stream, buffer_, parser, error);
    if (error) return std::nullopt;
    isKept_ = parser.get().keep_alive();
    return requestOf(parser.get());
}

}  // namespace larkspan::simulator
