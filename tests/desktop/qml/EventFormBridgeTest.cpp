#include "bridge/screens/EventFormBridge.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "bridge/incidents/CreateIncidentBridge.h"
#include "bridge/maintenances/CreateMaintenanceBridge.h"
#include "incidents/FormOfAnIncident.h"
#include "maintenances/FormOfAMaintenance.h"

namespace larkspan::bridge {

namespace {

using Incident = incidents::FormOfAnIncident;
using Maintenance = maintenances::FormOfAMaintenance;

/// The lists of a form from which one chooses what is affected.
struct ListsOfChoices {
    QList<ChoiceValue> groups;
    QList<ChoiceValue> components;
    QList<ChoiceValue> monitors;

    explicit ListsOfChoices(const ComponentSelectionBridge& selection)
        : groups(selection.property("groups").value<QList<ChoiceValue>>())
        , components(selection.property("components").value<QList<ChoiceValue>>())
        , monitors(selection.property("monitors").value<QList<ChoiceValue>>())
    {
    }

    /// None of them was made again, not even with the same entries.
    bool areStill(const ListsOfChoices& others) const
    {
        return groups.constData() == others.groups.constData()
            && components.constData() == others.components.constData()
            && monitors.constData() == others.monitors.constData();
    }
};

/// The form with a component chosen, so that each of its lists has entries.
template <typename Form>
class FormForScreens : public Form {
protected:
    using Bridge = std::conditional_t<std::is_same_v<Form, Incident>, CreateIncidentBridge, CreateMaintenanceBridge>;

    FormForScreens()
    {
        this->opened();
        this->choose("back", "api");
        bridge = std::make_unique<Bridge>(this->form, updates);
    }

    ComponentSelectionBridge& selection() { return *bridge->selection(); }

    ScreenUpdates updates{this->main};
    std::unique_ptr<Bridge> bridge;
};

struct NameOfAForm {
    template <typename Form>
    static std::string GetName(int)
    {
        return std::is_same_v<Form, Incident> ? "Incident" : "Maintenance";
    }
};

using Forms = testing::Types<Incident, Maintenance>;
TYPED_TEST_SUITE(FormForScreens, Forms, NameOfAForm);

TYPED_TEST(FormForScreens, MakesNoListOfChoicesAgainWhileATextIsTyped)
{
    const ListsOfChoices before(this->selection());
    ASSERT_EQ(before.monitors.size(), 3);
    const QSignalSpy changes(this->bridge.get(), &ScreenBridge::changed);
    const QSignalSpy choices(&this->selection(), &ScreenBridge::changed);
    for (const auto* const text : {"D", "Do", "Dow", "Down"}) {
        this->bridge->editTitle(QString::fromUtf8(text));
        this->run();
        this->bridge->editMessage(QString::fromUtf8(text));
        this->run();
    }
    EXPECT_EQ(changes.count(), 8);
    EXPECT_EQ(choices.count(), 0);
    EXPECT_TRUE(before.areStill(ListsOfChoices(this->selection())));
    EXPECT_TRUE(this->form->hasUnsavedText());
}

TYPED_TEST(FormForScreens, MakesThemOnceForAChoiceWhichTheFormHearsOfToo)
{
    const QSignalSpy changes(this->bridge.get(), &ScreenBridge::changed);
    const QSignalSpy choices(&this->selection(), &ScreenBridge::changed);
    this->selection().chooseGroup({});
    this->run();
    EXPECT_EQ(choices.count(), 1);
    EXPECT_EQ(changes.count(), 1) << "it decides whether the form can be saved";
    EXPECT_EQ(ListsOfChoices(this->selection()).components.size(), 1);
}

}  // namespace

}  // namespace larkspan::bridge
