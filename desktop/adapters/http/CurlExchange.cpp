#include "adapters/http/CurlExchange.h"

#include <string_view>
#include <utility>

#include "adapters/http/Redirect.h"
#include "adapters/http/RequestOptions.h"
#include "adapters/http/TlsPolicy.h"
#include "adapters/http/TransferFailure.h"

namespace larkspan::adapters {

namespace {

using Code = platform::URLError::Code;

constexpr int mostRedirects = 10;

std::string_view pathOf(std::string_view url)
{
    const auto host = url.find("//");
    const auto path = host == std::string_view::npos ? host : url.find('/', host + 2);
    return path == std::string_view::npos ? "/" : url.substr(path);
}

}  // namespace

CurlExchange::CurlExchange(ClientLoop& loop, const TransportSettings& settings, platform::HttpRequest request,
    std::optional<std::string> proxy, Finished finished)
    : loop_(loop)
    , settings_(settings)
    , request_(std::move(request))
    , proxy_(std::move(proxy))
    , finished_(std::move(finished))
{
    send();
}

CurlExchange::~CurlExchange()
{
    loop_.drop(transfer_.get());
}

void CurlExchange::send()
{
    head_ = {};
    session_ = {};
    body_.clear();
    bytesSeen_ = 0;
    transfer_.reset(curl_easy_init());
    if (!transfer_) support::fatalError("out of memory");

    headers_ = setRequest(transfer_.get(), request_);
    requireVerifiedTls(transfer_.get(), settings_.certificateBundle);
    setTransport();
    setReceivers();

    lastByte_ = ClientLoop::Clock::now();
    watchForSilence();
    loop_.begin(transfer_.get(), [this](CURLcode result) { ended(result); });
}

void CurlExchange::setTransport()
{
    setOption(transfer_.get(), CURLOPT_NOSIGNAL, 1L);
    // Without this, destroying a transfer waits for the resolver, which may take as long as its servers are silent.
    setOption(transfer_.get(), CURLOPT_QUICK_EXIT, 1L);
    if (proxy_) setOption(transfer_.get(), CURLOPT_PROXY, proxy_->c_str());
    if (needsFreshConnection_) setOption(transfer_.get(), CURLOPT_FRESH_CONNECT, 1L);
    setOption(transfer_.get(), CURLOPT_SOCKOPTFUNCTION, &noteSocket);
    setOption(transfer_.get(), CURLOPT_SOCKOPTDATA, this);
    setOption(transfer_.get(), CURLOPT_PREREQFUNCTION, &beforeRequest);
    setOption(transfer_.get(), CURLOPT_PREREQDATA, this);
    setOption(transfer_.get(), CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
}

void CurlExchange::setReceivers()
{
    setOption(transfer_.get(), CURLOPT_HEADERFUNCTION, &receiveHeader);
    setOption(transfer_.get(), CURLOPT_HEADERDATA, this);
    setOption(transfer_.get(), CURLOPT_WRITEFUNCTION, &receiveBody);
    setOption(transfer_.get(), CURLOPT_WRITEDATA, this);
    setOption(transfer_.get(), CURLOPT_XFERINFOFUNCTION, &observeProgress);
    setOption(transfer_.get(), CURLOPT_XFERINFODATA, this);
    setOption(transfer_.get(), CURLOPT_NOPROGRESS, 0L);
    setOption(transfer_.get(), CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(settings_.largestBody));
}

void CurlExchange::ended(CURLcode result)
{
    // Nothing has been sent.
    if (result == CURLE_ABORTED_BY_CALLBACK) return send();
    if (result == CURLE_OK && isWhole() && followRedirect()) return;
    finish(outcome(result));
}

CurlExchange::Result CurlExchange::outcome(CURLcode result)
{
    if (isBodyTooLarge_) return Code::dataLengthExceedsMaximum;
    if (!head_.isAcceptable()) return Code::badServerResponse;
    if (result != CURLE_OK) return transferFailure(transfer_.get(), result);
    if (!isWhole()) return Code::networkConnectionLost;

    long status = 0;
    curl_easy_getinfo(transfer_.get(), CURLINFO_RESPONSE_CODE, &status);
    if (status < 200) return Code::badServerResponse;
    return platform::HttpResponse{static_cast<int>(status), std::move(body_)};
}

bool CurlExchange::isWhole() const
{
    if (!head_.isWhole()) return false;
    return head_.tellsLength() || request_.method == "HEAD" || session_.isClosedByPeer();
}

bool CurlExchange::followRedirect()
{
    long status = 0;
    const char* location = nullptr;
    curl_easy_getinfo(transfer_.get(), CURLINFO_RESPONSE_CODE, &status);
    curl_easy_getinfo(transfer_.get(), CURLINFO_REDIRECT_URL, &location);
    if (!location || redirects_ == mostRedirects) return false;

    auto next = afterRedirect(request_, static_cast<int>(status), location);
    if (!next || !isFirstWriteTo(*next)) return false;
    ++redirects_;
    request_ = std::move(*next);
    send();
    return true;
}

/// The service may have carried out a write that it redirects to where it was.
bool CurlExchange::isFirstWriteTo(const platform::HttpRequest& next)
{
    if (isRead(next)) return true;
    writtenTo_.emplace(pathOf(request_.url));
    return writtenTo_.emplace(pathOf(next.url)).second;
}

void CurlExchange::finish(Result result)
{
    loop_.drop(transfer_.get());
    silence_.reset();
    // The callback may destroy this exchange.
    std::exchange(finished_, {})(std::move(result));
}

void CurlExchange::watchForSilence()
{
    const auto end = lastByte_ + settings_.idleTimeout;
    if (end <= ClientLoop::Clock::now()) return finish(Code::timedOut);
    silence_ = loop_.at(end, [this] { watchForSilence(); });
}

int CurlExchange::noteSocket(void* exchange, curl_socket_t socket, curlsocktype)
{
    static_cast<CurlExchange*>(exchange)->loop_.sockets().add(socket);
    return CURL_SOCKOPT_OK;
}

// What has come on a kept connection since its last answer was asked for by nobody. It would be taken for the answer to
// this request, and the answer to this one for that to the next.
int CurlExchange::beforeRequest(void* exchange, char*, char*, int, int localPort)
{
    auto& self = *static_cast<CurlExchange*>(exchange);
    long made = 0;
    curl_easy_getinfo(self.transfer_.get(), CURLINFO_NUM_CONNECTS, &made);
    if (made > 0 || self.needsFreshConnection_) return CURL_PREREQFUNC_OK;
    self.needsFreshConnection_
        = TlsSession::hasSomethingUnread(self.transfer_.get()) || self.loop_.sockets().hasSomethingUnread(localPort);
    return self.needsFreshConnection_ ? CURL_PREREQFUNC_ABORT : CURL_PREREQFUNC_OK;
}

std::size_t CurlExchange::receiveHeader(char* bytes, std::size_t, std::size_t size, void* exchange)
{
    auto& self = *static_cast<CurlExchange*>(exchange);
    self.head_.read({bytes, size});
    if (self.head_.isWhole() && !self.head_.tellsLength()) self.session_ = TlsSession(self.transfer_.get());
    return self.head_.isAcceptable() ? size : 0;
}

std::size_t CurlExchange::receiveBody(char* bytes, std::size_t, std::size_t size, void* exchange)
{
    auto& self = *static_cast<CurlExchange*>(exchange);
    if (size > self.settings_.largestBody - self.body_.size()) {
        self.isBodyTooLarge_ = true;
        self.body_ = {};
        return 0;
    }
    self.body_.append(bytes, size);
    return size;
}

// libcurl's counts leave out the head of an answer, so those of the connection are used.
int CurlExchange::observeProgress(void* exchange, curl_off_t, curl_off_t, curl_off_t, curl_off_t)
{
    auto& self = *static_cast<CurlExchange*>(exchange);
    const auto moved = TlsSession::bytesMoved(self.transfer_.get());
    if (moved != std::exchange(self.bytesSeen_, moved)) self.lastByte_ = ClientLoop::Clock::now();
    return 0;
}

}  // namespace larkspan::adapters
