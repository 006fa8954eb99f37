#include "model/json/Encoding.h"

#include "model/json/EncodingError.h"
#include "model/json/ISO8601.h"
#include "model/json/KeyConversion.h"
#include "support/Utf8.h"

namespace larkspan::model {

namespace {

void writeCharacter(char character, std::string& into)
{
    constexpr std::string_view hexDigits = "0123456789abcdef";
    switch (character) {
    case '"': into += "\\\""; return;
    case '\\': into += "\\\\"; return;
    case '\b': into += "\\b"; return;
    case '\f': into += "\\f"; return;
    case '\n': into += "\\n"; return;
    case '\r': into += "\\r"; return;
    case '\t': into += "\\t"; return;
    default: break;
    }
    const auto code = static_cast<unsigned char>(character);
    if (code >= 0x20) {
        into += character;
        return;
    }
    into += "\\u00";
    into += hexDigits[code >> 4];
    into += hexDigits[code & 0xF];
}

void writeText(std::string_view text, std::string& into)
{
    into += '"';
    for (const char character : text) writeCharacter(character, into);
    into += '"';
}

}  // namespace

void JSONObjectWriter::write(std::string_view keyName, const std::string& value)
{
    if (!support::isValidUtf8(value)) {
        throw EncodingError("The request could not be written: " + toSnakeCase(keyName) + " is not valid text.");
    }
    writeKey(keyName);
    writeText(value, text_);
}

void JSONObjectWriter::write(std::string_view keyName, bool value)
{
    writeKey(keyName);
    text_ += value ? "true" : "false";
}

void JSONObjectWriter::write(std::string_view keyName, int value)
{
    writeKey(keyName);
    text_ += std::to_string(value);
}

void JSONObjectWriter::write(std::string_view keyName, support::Time value)
{
    writeKey(keyName);
    writeText(writeISO8601(value), text_);
}

void JSONObjectWriter::writeObjects(std::string_view keyName, const std::vector<std::string>& objects)
{
    writeKey(keyName);
    text_ += '[';
    for (const auto& object : objects) {
        if (&object != &objects.front()) text_ += ',';
        text_ += object;
    }
    text_ += ']';
}

std::string JSONObjectWriter::finish() &&
{
    text_ += '}';
    return std::move(text_);
}

void JSONObjectWriter::writeKey(std::string_view keyName)
{
    if (text_.size() > 1) text_ += ',';
    writeText(toSnakeCase(keyName), text_);
    text_ += ':';
}

}  // namespace larkspan::model
