#pragma once

#include <filesystem>

#include "server/Certificate.h"

namespace larkspan::simulator {

/// The simulator's own certificate authority, created on first use and kept in a directory, so that a machine has to
/// trust it only once.
class AuthorityStore {
public:
    /// Creates the directory if it is missing. Throws std::runtime_error with a sentence.
    explicit AuthorityStore(std::filesystem::path directory);

    const Identity& authority() const { return authority_; }

    /// The authority's certificate, without its key.
    const std::filesystem::path& certificateFile() const { return certificateFile_; }

private:
    std::filesystem::path certificateFile_;
    Identity authority_;
};

/// The default directory of the authority, in the user's data directory.
std::filesystem::path defaultAuthorityDirectory();

}  // namespace larkspan::simulator
