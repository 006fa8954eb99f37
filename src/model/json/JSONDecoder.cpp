#include "model/json/JSONDecoder.h"

#include <simdjson.h>

#include <tuple>

#include "model/bodies/DataResponse.h"
#include "model/bodies/ResultRecords.h"
#include "model/json/Decoding.h"
#include "model/json/NumbersOutOfRange.h"

namespace larkspan::model {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::string_view problem(simdjson::error_code error)
{
    switch (error) {
    case simdjson::DEPTH_ERROR: return "Nested too deeply";
    case simdjson::CAPACITY:
    case simdjson::MEMALLOC: return "Too large";
    case simdjson::UTF8_ERROR: return "Not valid UTF-8";
    // Also of a number: releases of the parser differ in what they take for the beginning of one.
    default: return "Not valid JSON";
    }
}

/// Releases of the parser differ in the error for a number out of range.
bool isAboutANumber(simdjson::error_code error)
{
    static const auto tooLong = [] {
        simdjson::dom::parser parser;
        return parser.parse(std::string(30, '9')).error();
    }();
    return error == simdjson::NUMBER_ERROR || error == tooLong;
}

/// A parsed body; everything that is read from it is valid as long as this object.
class Document {
public:
    explicit Document(const std::string& body)
    {
        // The parser reads ahead, and copies a text without padding behind it.
        const bool hasRoom = body.capacity() - body.size() >= simdjson::SIMDJSON_PADDING;
        std::string_view text = body;
        if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
        // Some releases of the parser skip such a mark themselves.
        if (text.starts_with(byteOrderMark)) fail(simdjson::TAPE_ERROR);
        auto error = parse(text, !hasRoom);
        if (isAboutANumber(error)) error = parse(withNumbersInRange(text, simdjson::SIMDJSON_PADDING), false);
        if (error) fail(error);
    }

    simdjson::dom::element root() const { return root_; }

private:
    /// The parsed document does not refer to `text`.
    simdjson::error_code parse(std::string_view text, bool isToBeCopied)
    {
        return parser_.parse(text.data(), text.size(), isToBeCopied).get(root_);
    }

    [[noreturn]] static void fail(simdjson::error_code error)
    {
        throw DecodingError(DecodingError::Kind::dataCorrupted, "", problem(error));
    }

    simdjson::dom::parser parser_;
    simdjson::dom::element root_;
};

template <typename T>
T decodeShapes(const JSONValue& root)
{
    try {
        return decode<DataResponse<T>>(root).data;
    } catch (const DecodingError&) {
        try {
            return decode<T>(root);
        } catch (const DecodingError&) {
            if constexpr (IsList<T>::value) {
                const auto data = root.exactly("data");
                if (data && data->is_null()) return {};
            }
        }
        throw;
    }
}

/// The value in an envelope of one key.
template <typename Envelope>
auto decodeContent(const JSONValue& root)
{
    constexpr auto& rows = wireRows<Envelope>;
    static_assert(std::tuple_size_v<std::remove_cvref_t<decltype(rows)>> == 1);
    return decode<Envelope>(root).*std::get<0>(rows).field;
}

template <typename Envelope>
typename Envelope::List decodeListShapes(const JSONValue& root)
{
    using List = typename Envelope::List;
    try {
        return decodeContent<DataResponse<List>>(root);
    } catch (const DecodingError&) {
        try {
            return decodeContent<Envelope>(root);
        } catch (const DecodingError&) {
            return decode<List>(root);
        }
    }
}

template <typename Result>
Result read(const std::string& body, support::Time now, Result (*decodeRoot)(const JSONValue&))
{
    const Document document(body);
    JSONReading reading{.now = now};
    try {
        auto result = decodeRoot(JSONValue(document.root(), reading));
        // Also for a value that is read forgivingly, whose own failure is ignored.
        reading.failIfTooLong();
        return result;
    } catch (const DecodingError&) {
        // Reported instead of the failure to find another shape.
        reading.failIfTooLong();
        throw;
    }
}

}  // namespace

JSONDecoder::JSONDecoder(const platform::Clock& clock)
    : clock_(clock)
{
}

template <typename Result>
Result detail::decodeResult(const std::string& body, support::Time now)
{
    return read(body, now, decodeShapes<Result>);
}

template <typename Envelope>
typename Envelope::List detail::decodeList(const std::string& body, support::Time now)
{
    return read(body, now, decodeListShapes<Envelope>);
}

template <typename Result>
Result detail::decodeBare(const std::string& body, support::Time now)
{
    return read(body, now, decode<Result>);
}

namespace {

template <typename... Types, typename... Envelopes, typename... BareTypes>
constexpr auto decodingsOf(TypeList<Types...>, TypeList<Envelopes...>, TypeList<BareTypes...>)
{
    return std::tuple{
        &detail::decodeResult<Types>..., &detail::decodeList<Envelopes>..., &detail::decodeBare<BareTypes>...};
}

// The templates are only declared in the header; taking their addresses here instantiates them.
[[gnu::used]] constexpr auto decodings = decodingsOf(Results{}, ListEnvelopes{}, BareResults{});

}  // namespace

}  // namespace larkspan::model
