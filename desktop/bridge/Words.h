#pragma once

#include <QString>

#include <string_view>

namespace larkspan::bridge {

inline QString words(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace larkspan::bridge
