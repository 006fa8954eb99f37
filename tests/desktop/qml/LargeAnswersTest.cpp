#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ComponentsOnScreen.h"
#include "IncidentsOnScreen.h"
#include "MaintenancesOnScreen.h"
#include "MonitorsOnScreen.h"
#include "ProcessorTime.h"

namespace larkspan {

namespace {

constexpr int mostRecords = 20'000;
// Without a place to break, for which the layout takes quadratic time.
const std::string megabyte(1'000'000, 'x');

std::string member(const std::string& key, const std::string& text)
{
    return ", \"" + key + R"(": ")" + text + '"';
}

std::vector<std::string> each(std::string (*record)(const std::string&, const std::string&, const std::string&))
{
    std::vector<std::string> records;
    for (int id = 1; id <= mostRecords; ++id) records.push_back(record(std::to_string(id), "n", ""));
    return records;
}

// In seconds; at least three times what an idle machine needs. Some texts took two minutes before they were shown in
// part.
constexpr double aMoment = 3;

TEST_F(IncidentsOnScreen, AMegabyteInAnIncidentIsShownInAMoment)
{
    for (const auto& huge : {incident("1", megabyte), incident("1", "n", member("message", megabyte)),
             incident("1", "n", member("severity_name", megabyte))}) {
        serve({huge});
        EXPECT_LT(secondsOf([this] {
            press(Qt::Key_1, Qt::ControlModifier);
            press(Qt::Key_2, Qt::ControlModifier);
            openFirst();
        }),
            aMoment);
        press(Qt::Key_Escape);
    }
}

TEST_F(IncidentsOnScreen, AMegabyteInAPageIsShownInAMoment)
{
    for (const auto& huge : {R"("name": ")" + megabyte + '"', R"("name": "a")" + member("description", megabyte),
             R"("name": "a")" + member("url", "https://a.example/" + megabyte)}) {
        transport.script(pagesURL, 200, R"([{"id": "a", )" + huge + "}]");
        EXPECT_LT(secondsOf([this] {
            refresh();
            settle();
            press(Qt::Key_1, Qt::ControlModifier);
            press(Qt::Key_2, Qt::ControlModifier);
        }),
            aMoment);
    }
}

TEST_F(MonitorsOnScreen, AMegabyteInAMonitorIsShownInAMoment)
{
    for (const auto& huge : {monitor("1", megabyte), monitor("1", "n", member("target", megabyte)),
             monitor("1", "n", member("state", megabyte))}) {
        serve({huge});
        EXPECT_LT(secondsOf([this] {
            reenter();
            choose("Monitor Details");
        }),
            aMoment);
        press(Qt::Key_Escape);
    }
}

TEST_F(ComponentsOnScreen, AMegabyteInAComponentIsShownAndEditedInAMoment)
{
    for (const auto& huge : {component("1", megabyte), component("1", "n", member("url", megabyte)),
             component("1", "n", member("monitor_state", megabyte)),
             component("1", "n", member("description", megabyte))}) {
        serve({huge});
        EXPECT_LT(secondsOf([this] {
            enterAgain();
            item(Role::List, QStringLiteral("Components")).forceActiveFocus(Qt::TabFocusReason);
            press(Qt::Key_Return);
            choose("Edit");
        }),
            aMoment);
        press(Qt::Key_Escape);
        press(Qt::Key_Escape);
    }
}

TEST_F(MaintenancesOnScreen, AMegabyteInAMaintenanceIsShownAndEditedInAMoment)
{
    for (const auto& huge :
        {work("1", megabyte, isScheduled), work("1", "n", isScheduled + member("message", megabyte))}) {
        serve({huge});
        EXPECT_LT(secondsOf([this] {
            press(Qt::Key_1, Qt::ControlModifier);
            press(Qt::Key_5, Qt::ControlModifier);
            openEditor();
        }),
            aMoment);
        press(Qt::Key_Escape);
        press(Qt::Key_Escape);
    }
}

TEST_F(IncidentsOnScreen, AsManyIncidentsAsAnAnswerMayHoldAreListedInAMoment)
{
    serve(each(incident));
    EXPECT_LT(secondsOf([this] {
        press(Qt::Key_1, Qt::ControlModifier);
        press(Qt::Key_2, Qt::ControlModifier);
    }),
        aMoment);
    EXPECT_EQ(item(Role::List, QStringLiteral("Incidents")).property("count").toInt(), mostRecords);
}

TEST_F(MonitorsOnScreen, AsManyMonitorsAsAnAnswerMayHoldAreListedInAMoment)
{
    serve(each(monitor));
    EXPECT_LT(secondsOf([this] { reenter(); }), aMoment);
    EXPECT_EQ(list().property("count").toInt(), mostRecords);
}

TEST_F(MonitorsOnScreen, AsManyFiguresAsAnAnswerMayHoldAreDrawnInAMoment)
{
    std::string figures = "1";
    for (int count = 2; count < 100'000; ++count) figures += count % 7 == 0 ? ",900" : ",30";
    transport.script(metricsURL, 200, R"({"metrics": {"1": {"latency": [)" + figures + "]}}}");
    EXPECT_LT(secondsOf([this] { choose("Show latency graph"); }), aMoment);
}

TEST_F(ComponentsOnScreen, AsManyComponentsAsAnAnswerMayHoldAreListedInAMoment)
{
    serve(each(component));
    transport.script(groupsURL, 200, "[]");
    EXPECT_LT(secondsOf([this] { enterAgain(); }), aMoment);
    EXPECT_GE(item(Role::List, QStringLiteral("Components")).property("count").toInt(), mostRecords);
}

TEST_F(MaintenancesOnScreen, AsManyMaintenancesAsAnAnswerMayHoldAreListedInAMoment)
{
    serve(each(work));
    EXPECT_LT(secondsOf([this] {
        press(Qt::Key_1, Qt::ControlModifier);
        press(Qt::Key_5, Qt::ControlModifier);
    }),
        aMoment);
    EXPECT_EQ(item(Role::List, QStringLiteral("Maintenances")).property("count").toInt(), mostRecords);
}

}  // namespace

}  // namespace larkspan
