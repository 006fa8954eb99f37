#include "stage/Endings.h"

#include <utility>

namespace larkspan::campaign {

std::string statusSentence(int code)
{
    return "Server returned HTTP status code " + std::to_string(code) + ".";
}

std::string succeeds(const Operation&)
{
    return {};
}

Ending endsWith(std::string sentence)
{
    return [sentence = std::move(sentence)](const Operation&) { return sentence; };
}

Ending cannotRead(std::string sentence)
{
    return [sentence = std::move(sentence)](
               const Operation& operation) { return operation.answer == Answer::unread ? std::string() : sentence; };
}

Ending onlyWritesEndWith(std::string sentence)
{
    return [sentence = std::move(sentence)](
               const Operation& operation) { return operation.isWrite() ? sentence : std::string(); };
}

std::string ByAnswer::operator()(const Operation& operation) const
{
    switch (operation.answer) {
    case Answer::nothing: return nothing;
    case Answer::record: return record;
    case Answer::list: return list;
    case Answer::namedList: return namedList;
    case Answer::bareObject: return bareObject;
    case Answer::unread: break;
    }
    return {};
}

Ending endsAsStatus(int code, bool hasBody)
{
    if (code < 200 || code > 299) return endsWith(statusSentence(code));
    if (hasBody) return succeeds;
    return ByAnswer{
        .nothing = "", .record = invalidResponse, .list = invalidResponse, .namedList = noJSON, .bareObject = noJSON};
}

}  // namespace larkspan::campaign
