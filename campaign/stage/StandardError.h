#pragma once

#include <string>
#include <vector>

namespace larkspan::campaign {

/// What this process writes to its standard error, and with it the log, as long as the object lives. It goes to the
/// real one at the end.
class StandardError {
public:
    StandardError();
    ~StandardError();
    StandardError(const StandardError&) = delete;
    StandardError& operator=(const StandardError&) = delete;

    /// A sentence for each line so far with `text` in it.
    std::vector<std::string> linesWith(const std::string& text) const;

private:
    std::string written() const;

    const int real_;
    const int file_;
};

}  // namespace larkspan::campaign
