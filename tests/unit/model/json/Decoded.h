#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "fakes/ManualClock.h"
#include "model/json/DecodingError.h"
#include "model/json/JSONDecoder.h"

namespace larkspan::model {

/// The result in `body`, decoded at `now`.
template <typename T>
T decoded(std::string_view body, support::Time now = fakes::ManualClock().time)
{
    fakes::ManualClock clock;
    clock.time = now;
    return JSONDecoder(clock).decodeResult<T>(std::string(body));
}

/// The list in `body` in one of the three shapes of a list with its own envelope.
template <typename Envelope>
typename Envelope::List decodedList(std::string_view body)
{
    return JSONDecoder(fakes::ManualClock()).decodeList<Envelope>(std::string(body));
}

/// The result in `body` as a whole.
template <typename T>
T decodedBare(std::string_view body)
{
    return JSONDecoder(fakes::ManualClock()).decodeBare<T>(std::string(body));
}

/// The error of a failed decoding.
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

/// The error of `decode` for `body`; the test fails if there is none.
template <typename Decode>
DecodingFailure failureOfDecoding(Decode decode, std::string_view body)
{
    try {
        decode(body);
    } catch (const DecodingError& error) {
        return {error.kind(), error.path(), error.localizedDescription()};
    }
    ADD_FAILURE() << "decoded: " << body.substr(0, 200);
    return {};
}

/// The error when `body` is read as a `T`, in either result shape.
template <typename T>
DecodingFailure failureOf(std::string_view body)
{
    return failureOfDecoding([](std::string_view text) { decoded<T>(text); }, body);
}

/// The error when `body` is read as a list in any of its three shapes.
template <typename Envelope>
DecodingFailure failureOfList(std::string_view body)
{
    return failureOfDecoding(decodedList<Envelope>, body);
}

/// The error when `body` as a whole is read as a `T`.
template <typename T>
DecodingFailure failureOfBare(std::string_view body)
{
    return failureOfDecoding(decodedBare<T>, body);
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
