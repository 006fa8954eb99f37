#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "incidents/FormOfAnIncident.h"
#include "maintenances/FormOfAMaintenance.h"

namespace larkspan::presentation {

namespace {

using platform::HttpResponse;
using Choices = std::vector<Choice>;

/// A form in which "API" and then "Cron" was chosen before the monitors of either arrived.
template <typename Form>
class MonitorsOfTwoComponents : public Form {
protected:
    MonitorsOfTwoComponents()
    {
        this->transport.forget(this->apiMonitorsURL);
        this->transport.forget(this->cronMonitorsURL);
        this->titled("New");
        this->choose("back", "api");
        this->choose("back", "cron");
    }

    void answer(const std::string& monitor)
    {
        this->transport.answer(
            HttpResponse{200, R"({"monitors": [{"id": ")" + monitor + R"(", "name": "n", "component_id": "c"}]})"});
        this->run();
    }

    /// Lets the last request for monitors be answered first.
    void crossTheAnswers() { std::swap(this->transport.pending.front(), this->transport.pending.back()); }

    /// Beside the entry for none.
    Choices offered() const
    {
        const auto all = this->form->selection->monitorChoices();
        return {all.begin() + 1, all.end()};
    }
    std::string chosen() const { return *this->form->selection->selectedMonitorID; }
};

struct NameOfAForm {
    template <typename Form>
    static std::string GetName(int)
    {
        return std::is_same_v<Form, incidents::FormOfAnIncident> ? "Incident" : "Maintenance";
    }
};

using Forms = testing::Types<incidents::FormOfAnIncident, maintenances::FormOfAMaintenance>;
TYPED_TEST_SUITE(MonitorsOfTwoComponents, Forms, NameOfAForm);

TYPED_TEST(MonitorsOfTwoComponents, ThatComeInTheirOrderLeaveThoseOfTheChosenOne)
{
    this->answer("of-api");
    this->form->selection->chooseMonitor("of-api");
    this->answer("of-cron");
    EXPECT_EQ(this->offered(), (Choices{{"of-cron", "n"}}));
    EXPECT_EQ(this->chosen(), "");
}

TYPED_TEST(MonitorsOfTwoComponents, ThatCrossEachOtherAreThoseThatCameLastAndTheChoiceIsOneOfThem)
{
    this->crossTheAnswers();
    this->answer("of-cron");
    EXPECT_EQ(this->offered(), (Choices{{"of-cron", "n"}}));
    this->form->selection->chooseMonitor("of-cron");
    this->answer("of-api");
    EXPECT_EQ(this->offered(), (Choices{{"of-api", "n"}}));
    EXPECT_EQ(this->chosen(), "") << "what is sent is what is seen";
    EXPECT_EQ(*this->form->selection->selectedComponentID, "cron");
}

TYPED_TEST(MonitorsOfTwoComponents, ThatCrossEachOtherNameNoneInTheEventThatIsNotSeen)
{
    this->crossTheAnswers();
    this->answer("of-cron");
    this->form->selection->chooseMonitor("of-cron");
    this->answer("of-api");
    EXPECT_EQ(this->saved().find("of-"), std::string::npos);
}

TYPED_TEST(MonitorsOfTwoComponents, OfWhichTheFirstAreRefusedBehindTheOthersLeaveThose)
{
    this->crossTheAnswers();
    this->answer("of-cron");
    this->form->selection->chooseMonitor("of-cron");
    this->transport.answer(HttpResponse{500, ""});
    this->run();
    EXPECT_EQ(this->offered(), (Choices{{"of-cron", "n"}}));
    EXPECT_EQ(this->chosen(), "of-cron");
}

}  // namespace

}  // namespace larkspan::presentation
