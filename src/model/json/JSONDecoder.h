#pragma once

#include <string>

#include "model/bodies/Results.h"
#include "platform/Clock.h"

namespace larkspan::model {

namespace detail {

/// Compiled for each of `Results`.
template <typename Result>
Result decodeResult(const std::string& body, support::Time now);

/// Compiled for each of `ListEnvelopes`.
template <typename Envelope>
typename Envelope::List decodeList(const std::string& body, support::Time now);

/// Compiled for each of `BareResults`.
template <typename Result>
Result decodeBare(const std::string& body, support::Time now);

}  // namespace detail

/// Reads the service's answers. Safe to share between threads; `clock` must outlive it.
///
/// A wire key counts for the key name that it converts to (`created_at` for `createdAt`); of several that convert to
/// the same name the first counts. Unknown keys are ignored. A byte order mark is skipped. A number beyond a double, or
/// an integer beyond 64 bits, fails only the field that it is in, except that such an integer is accepted for a double.
/// Nesting deeper than 1024 makes the body unreadable, in unknown keys too, since the parser reads every value first.
class JSONDecoder {
public:
    explicit JSONDecoder(const platform::Clock& clock);

    /// The result in `body`: under the key `data` of an object, else the body as a whole, else, if a list is wanted and
    /// `data` is null, an empty list. Throws the `DecodingError` of the first of these attempts.
    template <typename Result>
    Result decodeResult(const std::string& body) const
    {
        static_assert(Results::holds<Result>,
            "a result is named in model/bodies/Results.h, from where decoder and fuzzer know it");
        return detail::decodeResult<Result>(body, clock_.now());
    }

    /// The list in `body`: under the key `data` of an object, else under the one key of `Envelope`, else the body as a
    /// whole. Null is not a list. Throws the `DecodingError` of the last of these attempts.
    template <typename Envelope>
    typename Envelope::List decodeList(const std::string& body) const
    {
        static_assert(ListEnvelopes::holds<Envelope>, "such a list is named in model/bodies/Results.h by its envelope");
        return detail::decodeList<Envelope>(body, clock_.now());
    }

    /// The body as a whole, in no other shape. Throws `DecodingError`.
    template <typename Result>
    Result decodeBare(const std::string& body) const
    {
        static_assert(BareResults::holds<Result>, "such a result is named in model/bodies/Results.h");
        return detail::decodeBare<Result>(body, clock_.now());
    }

private:
    const platform::Clock& clock_;
};

}  // namespace larkspan::model
