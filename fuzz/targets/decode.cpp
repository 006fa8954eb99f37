// Feeds arbitrary bytes to every decoding of an answer. Each ends with a result or with a DecodingError whose sentence
// can be shown.

#include <string>
#include <string_view>

#include "Target.h"
#include "model/bodies/ResultRecords.h"
#include "model/json/DecodingError.h"
#include "model/json/JSONDecoder.h"
#include "support/Utf8.h"

using namespace larkspan;
using fuzz::require;

namespace {

class StandingClock final : public platform::Clock {
public:
    support::Time now() const override { return support::Time{std::chrono::seconds{1'772'357'400}}; }
};

bool isOneShortLine(std::string_view sentence)
{
    return !sentence.empty() && sentence.size() < 1'000 && sentence.find('\n') == std::string_view::npos
        && support::isValidUtf8(sentence);
}

template <typename Decode>
void expectResultOrSentence(Decode decode)
{
    try {
        decode();
    } catch (const model::DecodingError& error) {
        require(isOneShortLine(error.localizedDescription()), "a failure is a sentence that can be shown");
    }
}

template <typename... Results, typename... Envelopes, typename... BareResults>
void decodeAll(const model::JSONDecoder& decoder, const std::string& body, model::TypeList<Results...>,
    model::TypeList<Envelopes...>, model::TypeList<BareResults...>)
{
    (expectResultOrSentence([&] { decoder.decodeResult<Results>(body); }), ...);
    (expectResultOrSentence([&] { decoder.decodeList<Envelopes>(body); }), ...);
    (expectResultOrSentence([&] { decoder.decodeBare<BareResults>(body); }), ...);
}

}  // namespace

FUZZ_TARGET(decode, input)
{
    const StandingClock clock;
    const model::JSONDecoder decoder(clock);
    decodeAll(decoder, std::string(input), model::Results{}, model::ListEnvelopes{}, model::BareResults{});
}
