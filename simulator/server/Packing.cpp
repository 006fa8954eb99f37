#include "server/Packing.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace larkspan::simulator {

namespace {

/// A gzip stream under construction.
class Packer {
public:
    Packer()
    {
        constexpr int gzipWindow = 15 + 16;
        constexpr int memoryLevel = 8;
        if (deflateInit2(&stream_, Z_BEST_COMPRESSION, Z_DEFLATED, gzipWindow, memoryLevel, Z_DEFAULT_STRATEGY)
            != Z_OK) {
            throw std::runtime_error("zlib could not be started");
        }
    }
    Packer(const Packer&) = delete;
    Packer& operator=(const Packer&) = delete;
    ~Packer() { deflateEnd(&stream_); }

    void add(std::string_view text) { run(text, Z_NO_FLUSH); }

    std::string finish()
    {
        run({}, Z_FINISH);
        return std::move(result_);
    }

private:
    void run(std::string_view text, int flush)
    {
        // zlib reads through this pointer and never writes.
        stream_.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(text.data()));
        stream_.avail_in = static_cast<uInt>(text.size());
        do {
            stream_.next_out = reinterpret_cast<Bytef*>(space_.data());
            stream_.avail_out = static_cast<uInt>(space_.size());
            deflate(&stream_, flush);
            result_.append(space_.data(), space_.size() - stream_.avail_out);
        } while (stream_.avail_out == 0);
    }

    z_stream stream_{};
    std::array<char, 16'384> space_{};
    std::string result_;
};

}  // namespace

std::string packed(std::string_view text, std::uint64_t blanks)
{
    const std::string piece(16'384, ' ');
    Packer packer;
    packer.add(text);
    while (blanks > 0) {
        const auto length = std::min<std::uint64_t>(blanks, piece.size());
        packer.add(std::string_view(piece).substr(0, length));
        blanks -= length;
    }
    return packer.finish();
}

}  // namespace larkspan::simulator
