#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "service/Exchange.h"
#include "support/Time.h"
#include "json/Json.h"

namespace larkspan::simulator {

/// Thrown to end a request with this status and a sentence under "error".
class Refusal : public std::runtime_error {
public:
    Refusal(int status, const std::string& sentence);

    int status() const { return status_; }

private:
    int status_;
};

/// The JSON object in a request's body. Anything wrong with it throws a `Refusal` with the status 422. Null counts as
/// absent.
class RequestBody {
public:
    explicit RequestBody(const Request& request);

    std::optional<std::string> text(const char* key) const;
    std::string requiredText(const char* key) const;
    std::vector<std::string> requiredTexts(const char* key) const;
    std::optional<std::string> textNotBlank(const char* key) const;
    std::string requiredTextNotBlank(const char* key) const;
    std::optional<bool> flag(const char* key) const;
    bool requiredFlag(const char* key) const;
    std::optional<support::Time> date(const char* key) const;
    support::Time requiredDate(const char* key) const;

private:
    const Json* find(const char* key) const;

    Json json_;
};

}  // namespace larkspan::simulator
