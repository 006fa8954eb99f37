#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace larkspan::simulator {

/// A temporary directory, deleted with the object.
class TemporaryDirectory {
public:
    TemporaryDirectory()
    {
        auto name = (std::filesystem::temp_directory_path() / "larkspan-XXXXXX").string();
        path_ = ::mkdtemp(name.data());
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
    ~TemporaryDirectory() { std::filesystem::remove_all(path_); }

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

}  // namespace larkspan::simulator
