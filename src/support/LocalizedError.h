#pragma once

#include <exception>
#include <string>
#include <utility>

namespace larkspan::support {

/// A failure with a sentence that a screen can show unchanged.
class LocalizedError : public std::exception {
public:
    explicit LocalizedError(std::string description)
        : description_(std::move(description))
    {
    }

    const std::string& localizedDescription() const { return description_; }
    const char* what() const noexcept override { return description_.c_str(); }

private:
    std::string description_;
};

/// The sentence of any failure; a general one if the exception has none. `error` must not be null.
std::string localizedDescription(const std::exception_ptr& error);

}  // namespace larkspan::support
