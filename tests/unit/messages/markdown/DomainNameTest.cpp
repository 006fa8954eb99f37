#include "messages/markdown/DomainName.h"

#include <gtest/gtest.h>

#include <ostream>

namespace larkspan::messages {

namespace {

struct DomainRow {
    std::string host;
    std::string name;
};

void PrintTo(const DomainRow& row, std::ostream* out)
{
    *out << row.name;
}

class DomainName : public testing::TestWithParam<DomainRow> {};

TEST_P(DomainName, IsWrittenInASCII)
{
    EXPECT_EQ(asciiDomainName(GetParam().host), GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(OfASCII, DomainName,
    testing::Values(DomainRow{"", ""}, DomainRow{"a.example", "a.example"}, DomainRow{"a..b.", "a..b."},
        DomainRow{"2001:db8::1", "2001:db8::1"}));

INSTANTIATE_TEST_SUITE_P(OfOtherScripts, DomainName,
    testing::Values(DomainRow{"bücher.example", "xn--bcher-kva.example"}, DomainRow{"a.ü.b", "a.xn--tda.b"},
        DomainRow{"münchen-ost.de", "xn--mnchen-ost-9db.de"}, DomainRow{"аpple.com", "xn--pple-43d.com"},
        DomainRow{"faß.example", "xn--fa-hia.example"}, DomainRow{"☃.net", "xn--n3h.net"},
        DomainRow{"😀.example", "xn--e28h.example"}));

// The samples of RFC 3492, section 7.1.
INSTANTIATE_TEST_SUITE_P(OfTheStandard, DomainName,
    testing::Values(DomainRow{"他们为什么不说中文", "xn--ihqwcrb4cv8a8dqg056pqjye"},
        DomainRow{"почемужеонинеговорятпорусски", "xn--b1abfaaepdrnnbgefbadotcwatmq2g4l"},
        DomainRow{"3年b組金八先生", "xn--3b-ww4c5e180e575a65lsy2b"},
        DomainRow{"ひとつ屋根の下2", "xn--2-u9tlzr9756bt3uc0v"},
        DomainRow{"TạisaohọkhôngthểchỉnóitiếngViệt", "xn--TisaohkhngthchnitingVit-kjcr8268qyxafd2f1b9g"}));

}  // namespace

}  // namespace larkspan::messages
