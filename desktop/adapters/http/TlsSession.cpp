#include "adapters/http/TlsSession.h"

namespace larkspan::adapters {

namespace {

int noteIndex()
{
    static const int index = SSL_get_ex_new_index(0, nullptr, nullptr, nullptr, nullptr);
    return index;
}

// The session's own record of this (SSL_get_shutdown) is gone when the transfer has ended.
void noteClosure(const SSL* session, int event, int alert)
{
    constexpr int descriptionBits = 0xFF;
    static int closed = 1;
    if (event == SSL_CB_READ_ALERT && (alert & descriptionBits) == SSL_AD_CLOSE_NOTIFY)
        SSL_set_ex_data(const_cast<SSL*>(session), noteIndex(), &closed);
}

SSL* sessionOf(CURL* transfer)
{
    const curl_tlssessioninfo* information = nullptr;
    curl_easy_getinfo(transfer, CURLINFO_TLS_SSL_PTR, &information);
    return information ? static_cast<SSL*>(information->internals) : nullptr;
}

}  // namespace

TlsSession::TlsSession(CURL* transfer)
    : session_(sessionOf(transfer))
{
    if (session_) SSL_up_ref(session_.get());
}

std::uint64_t TlsSession::bytesMoved(CURL* transfer)
{
    const auto* session = sessionOf(transfer);
    auto* wire = session ? SSL_get_rbio(session) : nullptr;
    return wire ? BIO_number_read(wire) + BIO_number_written(wire) : 0;
}

bool TlsSession::hasSomethingUnread(CURL* transfer)
{
    const auto* session = sessionOf(transfer);
    return session && SSL_has_pending(session) == 1;
}

bool TlsSession::isClosedByPeer() const
{
    return session_ && SSL_get_ex_data(session_.get(), noteIndex()) != nullptr;
}

void TlsSession::observe(SSL_CTX* context)
{
    SSL_CTX_set_info_callback(context, &noteClosure);
}

}  // namespace larkspan::adapters
