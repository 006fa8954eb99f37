#include <gtest/gtest.h>

#include "IncidentsOnScreen.h"
#include "Measures.h"

namespace larkspan {

namespace {

using platform::HttpResponse;

constexpr auto monitorsURL = "https://service.example/user/api/monitors?component_ids=api";

/// The form of a new incident of a page whose group "Back end" has two components; the first of them has two monitors.
class FormCascade : public IncidentsOnScreen {
protected:
    FormCascade()
    {
        window().resize(760, 900);
        transport.script(componentsURL, 200, components);
        transport.script(groupsURL, 200, groups);
    }

    void openWith(const char* title)
    {
        choose("New Incident");
        type("Title", title);
    }

    void focusOn(const char* picker)
    {
        item(Role::ComboBox, QString::fromUtf8(picker)).forceActiveFocus(Qt::TabFocusReason);
        settle();
    }

    /// The entries of the picker, from top to bottom.
    QStringList offers(const char* picker)
    {
        focusOn(picker);
        press(Qt::Key_Space);
        const auto rows = names(Role::MenuItem);
        press(Qt::Key_Escape);
        return rows;
    }

    /// Chooses the entry `down` rows below the current one.
    void take(const char* picker, int down)
    {
        focusOn(picker);
        press(Qt::Key_Space);
        for (; down > 0; --down) press(Qt::Key_Down);
        press(Qt::Key_Return);
    }

    QString chosen(const char* picker) const
    {
        for (const auto& thing : things()) {
            if (thing.role == Role::ComboBox && thing.name == QString::fromUtf8(picker)) return thing.description;
        }
        return QStringLiteral("no such picker");
    }

    bool has(const char* picker) const { return names(Role::ComboBox).contains(QString::fromUtf8(picker)); }
    bool shows(const char* text) const { return Screen::shows(QString::fromUtf8(text)); }
    bool progresses(const char* text) const { return names(Role::ProgressBar).contains(QString::fromUtf8(text)); }

    void answer(const char* body)
    {
        transport.answer(HttpResponse{.status = 200, .body = body});
        settle();
    }

    static constexpr auto components = R"([{"id": "api", "name": "REST API", "component_group_id": "back"},
        {"id": "cron", "name": "Cron", "component_group_id": "back"}])";
    static constexpr auto groups = R"([{"id": "none", "name": "Empty"}, {"id": "back", "name": "Back end"}])";
    static constexpr auto monitors = R"({"monitors": [{"id": "m1", "name": "HTTP check", "component_id": "api"},
        {"id": "m2", "name": "Ping", "component_id": "api"}]})";
};

TEST_F(FormCascade, BeginsWithTheEntirePageAndOffersGroupsThatHaveComponents)
{
    openWith("Down");
    EXPECT_EQ(chosen("Component Group"), QStringLiteral("Entire status page"));
    EXPECT_EQ(offers("Component Group"), (QStringList{"Entire status page", "Back end"}));
    EXPECT_TRUE(shows("Choose a group only when the incident is limited to it."));
    EXPECT_FALSE(has("Component"));
    EXPECT_FALSE(has("Monitor"));
    EXPECT_TRUE(isEnabled("Save"));
}

TEST_F(FormCascade, AsksForAComponentOnceAGroupIsChosen)
{
    openWith("Down");
    take("Component Group", 1);
    EXPECT_EQ(chosen("Component Group"), QStringLiteral("Back end"));
    EXPECT_EQ(chosen("Component"), QStringLiteral("Select a component"));
    EXPECT_EQ(offers("Component"), (QStringList{"Select a component", "Cron", "REST API"}));
    EXPECT_TRUE(shows("Then choose the affected component within that group."));
    EXPECT_FALSE(shows("Choose a group only when the incident is limited to it."));
    EXPECT_FALSE(isEnabled("Save"));
}

TEST_F(FormCascade, LoadsTheMonitorsOfAComponentAndAsksForOneOfThem)
{
    openWith("Down");
    take("Component Group", 1);
    take("Component", 2);
    EXPECT_TRUE(progresses("Loading monitors…"));
    EXPECT_FALSE(has("Monitor"));
    EXPECT_FALSE(isEnabled("Save"));
    answer(monitors);
    EXPECT_FALSE(progresses("Loading monitors…"));
    EXPECT_EQ(chosen("Monitor"), QStringLiteral("Select a monitor"));
    EXPECT_EQ(offers("Monitor"), (QStringList{"Select a monitor", "HTTP check", "Ping"}));
    EXPECT_FALSE(isEnabled("Save"));
    take("Monitor", 2);
    EXPECT_EQ(chosen("Monitor"), QStringLiteral("Ping"));
    EXPECT_TRUE(isEnabled("Save"));
}

TEST_F(FormCascade, SendsTheChosenComponentAndMonitorAndNoGroup)
{
    transport.script(monitorsURL, 200, monitors);
    transport.script(createURL, 201, incident("3", "Down"));
    openWith("Down");
    take("Component Group", 1);
    take("Component", 2);
    take("Monitor", 1);
    choose("Save");
    EXPECT_EQ(transport.requests.back().body,
        R"({"title":"Down","status_page_id":"a","component_id":"api","monitor_id":"m1","notify_subscribers":true})");
    EXPECT_FALSE(asks("New Incident"));
}

TEST_F(FormCascade, OfAComponentWithoutMonitorsAsksForNone)
{
    transport.script(monitorsURL, 200, R"({"monitors": []})");
    openWith("Down");
    take("Component Group", 1);
    take("Component", 2);
    EXPECT_FALSE(has("Monitor"));
    EXPECT_TRUE(isEnabled("Save"));
}

TEST_F(FormCascade, ForgetsComponentAndMonitorWithTheGroup)
{
    transport.script(monitorsURL, 200, monitors);
    openWith("Down");
    take("Component Group", 1);
    take("Component", 2);
    take("Monitor", 1);
    focusOn("Component Group");
    press(Qt::Key_Space);
    press(Qt::Key_Home);
    press(Qt::Key_Return);
    EXPECT_FALSE(has("Component"));
    EXPECT_FALSE(has("Monitor"));
    EXPECT_TRUE(isEnabled("Save"));
    take("Component Group", 1);
    EXPECT_EQ(chosen("Component"), QStringLiteral("Select a component"));
    EXPECT_FALSE(has("Monitor"));
}

TEST_F(FormCascade, SaysThatItsComponentsLoadInPlaceOfTheCaption)
{
    transport.forget(componentsURL);
    transport.forget(groupsURL);
    openWith("Down");
    EXPECT_TRUE(progresses("Loading components…"));
    EXPECT_FALSE(shows("Choose a group only when the incident is limited to it."));
    EXPECT_TRUE(isEnabled("Save"));
    while (!transport.pending.empty()) answer("[]");
    EXPECT_FALSE(progresses("Loading components…"));
    EXPECT_TRUE(shows("Choose a group only when the incident is limited to it."));
}

TEST_F(FormCascade, WhoseMonitorsCannotBeFetchedSaysSoAndCanBeSavedWithout)
{
    transport.script(monitorsURL, 500, "");
    openWith("Down");
    take("Component Group", 1);
    take("Component", 2);
    EXPECT_TRUE(asks("Error"));
    EXPECT_TRUE(shows("Could not load monitors for this component: Server returned HTTP status code 500."));
    press(Qt::Key_Return);
    EXPECT_FALSE(has("Monitor"));
    EXPECT_TRUE(isEnabled("Save"));
}

TEST_F(FormCascade, HasItsSectionsInOrderAndItsCaptionsSmallAndSecondary)
{
    openWith("Down");
    double above = 0;
    for (const auto* const section : {"Title", "Message (Optional)", "Affected Components", "Notifications"}) {
        const auto& heading = item(Role::Heading, QString::fromUtf8(section));
        EXPECT_GT(frameOf(heading).top(), above) << section;
        above = frameOf(heading).top();
    }
    for (const auto* const caption : {"Choose a group only when the incident is limited to it.",
             "Subscribers receive the initial incident update by email and any configured channels."}) {
        const auto& text = item(Role::StaticText, QString::fromUtf8(caption));
        EXPECT_EQ(sizeOf(text), type::caption) << caption;
        EXPECT_EQ(colorOf(text), light::secondary) << caption;
    }
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&item(Role::CheckBox, QStringLiteral("Notify subscribers")))
            ->state()
            .checked);
}

}  // namespace

}  // namespace larkspan
