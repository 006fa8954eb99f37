#include "stage/StandardError.h"

#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <iostream>
#include <sstream>

namespace larkspan::campaign {

StandardError::StandardError()
    : real_(::dup(STDERR_FILENO))
    , file_(::memfd_create("standard error", MFD_CLOEXEC))
{
    ::dup2(file_, STDERR_FILENO);
}

StandardError::~StandardError()
{
    ::dup2(real_, STDERR_FILENO);
    std::cerr << written();
    ::close(real_);
    ::close(file_);
}

std::vector<std::string> StandardError::linesWith(const std::string& text) const
{
    std::vector<std::string> found;
    std::istringstream lines(written());
    for (std::string line; std::getline(lines, line);) {
        if (line.find(text) != std::string::npos) found.push_back("A line of the standard error has the key.");
    }
    return found;
}

std::string StandardError::written() const
{
    std::string all;
    std::array<char, 4096> bytes;
    ssize_t count = 0;
    for (off_t at = 0; (count = ::pread(file_, bytes.data(), bytes.size(), at)) > 0; at += count)
        all.append(bytes.data(), static_cast<std::size_t>(count));
    return all;
}

}  // namespace larkspan::campaign
