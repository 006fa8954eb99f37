// What a message's author can have opened: only pages and mail addresses, and never another host than the one shown.

#include <algorithm>
#include <string>

#include "Target.h"
#include "messages/markdown/DomainName.h"
#include "messages/markdown/MarkdownLink.h"
#include "model/records/URL.h"
#include "presentation/text/WebAddress.h"
#include "support/IgnoringCase.h"
#include "support/Utf8.h"

using namespace larkspan;
using fuzz::require;
using messages::MarkdownLink;

namespace {

bool isASCII(std::string_view text)
{
    return std::ranges::all_of(text, [](unsigned char byte) { return byte < 0x80; });
}

void checkHost(const MarkdownLink& link)
{
    const auto url = model::URL::parse(link.destination);
    require(url.has_value(), "what is opened is a URL");
    require(messages::asciiDomainName(url->host()) == link.host, "the host that is told is the one that is opened");
    const auto authority
        = link.destination.substr(0, link.destination.find_first_of("/?#", link.destination.find("//") + 2));
    require(authority.find_first_of("@%\\") == std::string::npos, "nothing disguises the host");
    require(presentation::isWebAddress(link.destination), "a page has a web address");
}

void checkLink(std::string_view destination)
{
    const auto link = MarkdownLink::parse(destination);
    if (!link) return;
    require(!link->host.empty() && isASCII(link->host), "a host is told in ASCII");
    require(std::ranges::none_of(link->destination, [](char c) { return (c >= 0 && c <= ' ') || c == '\x7F'; }),
        "a destination is one word");
    require(link->destination.size() <= destination.size() * 3, "escaping makes three bytes of one at most");
    require(!destination.starts_with(' '), "a link starts with its scheme");
    if (link->destination.starts_with("mailto:")) {
        require(link->destination == "mailto:" + link->host, "a mail has one recipient and no headers");
    } else {
        require(
            link->destination.starts_with("https:") || link->destination.starts_with("http:"), "only pages are opened");
        checkHost(*link);
    }
    const auto again = MarkdownLink::parse(link->destination);
    require(!again || *again == *link, "a link leads where it led");
    require(again || link->destination.size() > 2'000, "a link is one");
}

void checkName(std::string_view host)
{
    const auto name = messages::asciiDomainName(host);
    require(isASCII(name), "a domain name is ASCII");
    require(!isASCII(host) || name == host, "a domain name in ASCII is not changed");
    require(std::ranges::count(name, '.') == std::ranges::count(host, '.'), "each label stays one");
    require(messages::asciiDomainName(name) == name, "a domain name is final");
}

}  // namespace

FUZZ_TARGET(links, input)
{
    checkLink(input);
    checkName(input.substr(0, 300));
    const auto scheme = input.substr(0, input.find(':'));
    require(!presentation::isWebAddress(input) || support::equalsIgnoringCase(scheme, "http")
            || support::equalsIgnoringCase(scheme, "https"),
        "only pages are opened");
}
