#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "fakes/ManualClock.h"
#include "model/DecodingError.h"
#include "model/JSONDecoder.h"

namespace larkspan::model {

/// The result in `body`, decoded at `now`.
template <typename T>
T decoded(std::string_view body, support::Time now = fakes::ManualClock().time)
{
    fakes::ManualClock clock;
    clock.time = now;
    return JSONDecoder(clock).decodeResult<T>(body);
}

/// What a failed decoding says.
struct DecodingFailure {
    DecodingError::Kind kind;
    std::string path;
    std::string description;

    bool operator==(const DecodingFailure&) const = default;
};

inline void PrintTo(const DecodingFailure& failure, std::ostream* out)
{
    *out << "kind " << static_cast<int>(failure.kind) << " at '" << failure.path << "': " << failure.description;
}

/// How `body` fails to be a `T`; the test fails if it is one after all.
template <typename T>
DecodingFailure failureOf(std::string_view body)
{
    try {
        decoded<T>(body);
    } catch (const DecodingError& error) {
        return {error.kind(), error.path(), error.localizedDescription()};
    }
    ADD_FAILURE() << "decoded: " << body.substr(0, 200);
    return {};
}

inline DecodingFailure keyNotFound(const std::string& path)
{
    return {DecodingError::Kind::keyNotFound, path, path + ": The key is missing"};
}

inline DecodingFailure valueNotFound(const std::string& path, const std::string& wanted)
{
    return {DecodingError::Kind::valueNotFound, path, path + ": Expected " + wanted + " but found null"};
}

inline DecodingFailure typeMismatch(const std::string& path, const std::string& wanted, const std::string& found)
{
    return {DecodingError::Kind::typeMismatch, path, path + ": Expected " + wanted + " but found " + found};
}

inline DecodingFailure dataCorrupted(const std::string& path, const std::string& problem)
{
    return {DecodingError::Kind::dataCorrupted, path, path + ": " + problem};
}

}  // namespace larkspan::model
