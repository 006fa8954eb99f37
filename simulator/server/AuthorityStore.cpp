#include "server/AuthorityStore.h"

#include <openssl/pem.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

namespace larkspan::simulator {

namespace {

namespace fs = std::filesystem;

using BioPointer = std::unique_ptr<BIO, OpenSslFree<BIO_free>>;

std::string textOf(BIO* bio)
{
    char* data = nullptr;
    const auto length = BIO_get_mem_data(bio, &data);
    return {data, static_cast<std::size_t>(length)};
}

std::string certificateText(const Identity& identity)
{
    const BioPointer bio(BIO_new(BIO_s_mem()));
    requireSuccess(bio && PEM_write_bio_X509(bio.get(), identity.certificate.get()) == 1, "write a certificate");
    return textOf(bio.get());
}

std::string keyText(const Identity& identity)
{
    const BioPointer bio(BIO_new(BIO_s_mem()));
    requireSuccess(
        bio && PEM_write_bio_PrivateKey(bio.get(), identity.key.get(), nullptr, nullptr, 0, nullptr, nullptr) == 1,
        "write a key");
    return textOf(bio.get());
}

/// Writes a temporary file, so that nobody ever reads half of a file.
fs::path writeTemporaryFile(const fs::path& file, const std::string& text, mode_t mode)
{
    auto name = file.string() + ".XXXXXX";
    const int descriptor = ::mkstemp(name.data());
    bool isWritten = descriptor >= 0 && ::fchmod(descriptor, mode) == 0;
    isWritten = isWritten && ::write(descriptor, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    if (descriptor >= 0) ::close(descriptor);
    if (!isWritten) throw std::runtime_error("Cannot write " + file.string() + ".");
    return name;
}

Identity read(const fs::path& file)
{
    const BioPointer bio(BIO_new_file(file.c_str(), "r"));
    Identity identity;
    if (bio) {
        identity.key.reset(PEM_read_bio_PrivateKey(bio.get(), nullptr, nullptr, nullptr));
        identity.certificate.reset(PEM_read_bio_X509(bio.get(), nullptr, nullptr, nullptr));
    }
    if (!identity.key || !identity.certificate) {
        throw std::runtime_error(
            "Cannot read the authority in " + file.string() + "; remove the file to have a new one made.");
    }
    return identity;
}

/// Key and certificate are in one file, which appears at once or not at all: if two simulators start for the first time
/// together, one creates the authority and both use it.
Identity readOrMake(const fs::path& file)
{
    if (!fs::exists(file)) {
        const auto made = makeAuthority("Larkspan simulator authority");
        const auto written = writeTemporaryFile(file, keyText(made) + certificateText(made), S_IRUSR | S_IWUSR);
        std::error_code somebodyWasFaster;
        fs::create_hard_link(written, file, somebodyWasFaster);
        fs::remove(written);
    }
    return read(file);
}

}  // namespace

AuthorityStore::AuthorityStore(fs::path directory)
    : certificateFile_(directory / "authority.pem")
{
    std::error_code error;
    fs::create_directories(directory, error);
    if (error) throw std::runtime_error("Cannot make the directory " + directory.string() + ".");
    authority_ = readOrMake(directory / "authority-with-key.pem");
    fs::rename(writeTemporaryFile(certificateFile_, certificateText(authority_), S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH),
        certificateFile_);
}

fs::path defaultAuthorityDirectory()
{
    if (const auto* data = std::getenv("XDG_DATA_HOME"); data && *data == '/')
        return fs::path(data) / "larkspan-simulator";
    const auto* home = std::getenv("HOME");
    return fs::path(home ? home : "/tmp") / ".local/share/larkspan-simulator";
}

}  // namespace larkspan::simulator
