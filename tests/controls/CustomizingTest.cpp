#include "support/CustomizingDesk.h"

#include <QAbstractItemView>

namespace Korvane {

using namespace Testing;
using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

constexpr int asksYesNo = MsgBoxStyle::YesNo | MsgBoxStyle::Question;
constexpr int asksOkCancel = MsgBoxStyle::OkCancel | MsgBoxStyle::Question;
const char* const choicesOfMood = "2|Mood|Good|True 2|Mood|Poor|False";
constexpr int asksWarily = asksOkCancel | MsgBoxStyle::DefaultButton2;

/// One way to leave a field that is being written, and whether it got anywhere.
struct WayOut {
    const char* name;
    std::function<bool(CustomizingDesk&)> go;
};

WayOut by(const char* step, std::function<bool(CustomizingDesk&)> gotThere) {
    return {step, [=](CustomizingDesk& d) { return d.does(step), gotThere(d); }};
}
bool isEmpty(CustomizingDesk& desk) {
    return desk.name().text().isEmpty();
}
bool isMood(CustomizingDesk& desk) {
    return desk.name().text() == "Mood";
}

const WayOut waysOut[] = {
    by("Cancel field", [](auto& d) { return d.heading() == "Fields of group [Vitals]"; }),
    by("New field", isEmpty),
    by("field 1", isMood),
    by("lblNip(1)", isMood),
    by("tab 1", [](auto& d) { return d.tabs().currentIndex() == 1; }),
    by("ID_CustomizeNipGroup", isEmpty),
    by("ID_NewNipGroup", isEmpty),
    by("Back", [](auto& d) { return !d.template part<QWidget>("paneCustomize").isVisible(); }),
    by("Close pane", [](auto& d) { return !d.heard.empty(); }),
    {"customizing again", [](auto& d) { return d.panel.CustomizeNip(), isEmpty(d); }},
    {"the host's load", [](auto& d) { return d.load(); }},
    {"the host's new Nip", [](auto& d) { return d.panel.CreateNip("P2"); }},
};

/// What a host's timer or a hand does while a question is open.
void doEverything(CustomizingDesk& desk) {
    EXPECT_FALSE(desk.load());
    EXPECT_FALSE(desk.panel.requestClose());
    desk.panel.CustomizeNip();
    for (const char* button : {"cmdNipCustomizeButton(0)", "cmdNipCustomizeButton(3)"})
        desk.part<QAbstractButton>(button).click();
    desk.part<QAction>("ID_DeleteNipGroup").trigger();
}

} // namespace

TEST(Customizing, MakesAFieldFromWhatIsTyped) {
    CustomizingDesk desk;
    desk.does("pulse=99"); // means nothing while the form is customized
    EXPECT_EQ(desk.pulse().text(), "72");
    desk.does("New field");
    EXPECT_EQ(desk.heading(), "New field in group [Vitals]");
    EXPECT_FALSE(desk.offers("cmdNipCustomizeButton(3)")) << "nothing to save yet";
    desk.does("caption=2nd pulse (rest)");
    EXPECT_EQ(desk.name().text(), "ndpulserest") << "a name is proposed";
    desk.does("name=RestPulse; caption=Resting pulse; row=1");
    QTest::keyClicks(&desk.displayType(), "List-M");
    for (const char* tried : {"refused", "stored"}) {
        EXPECT_EQ(desk.name().text(), "RestPulse") << "nothing is proposed over one's own";
        desk.db->failOn = std::string_view(tried) == "refused" ? "Insert Into DBFields" : "";
        QTest::keyClick(&desk.row(), Qt::Key_S, Qt::ControlModifier);
        desk.does("caption=Pulse at rest");
    }
    EXPECT_EQ(desk.told().size(), 2U) << "of the one that was refused";
    EXPECT_THAT(desk.fields(), HasSubstr("RestPulse|Pulse at rest|LIST-MULTIPLE|50"));
    EXPECT_EQ(desk.rows("Select RestPulse From NIP_Custom1"), "NULL");
    EXPECT_TRUE(desk.description().hasFocus());
    EXPECT_EQ(desk.pane(), "Fields of group [Vitals]: RestPulse Pulse Mood");
}

TEST(Customizing, ChangesAFieldAndKeepsItsDataAndTheEntriesOfTheOpenNip) {
    CustomizingDesk desk;
    desk.does("Back; pulse=99; Customize; txtNip(0)");
    EXPECT_EQ(desk.heading(), "Editing field [Pulse] of group [Vitals]");
    EXPECT_TRUE(desk.part<QWidget>("markNipField").geometry().contains(desk.pulse().geometry()));
    EXPECT_EQ(desk.list().currentItem()->text(0), "Pulse");
    EXPECT_FALSE(desk.offers("cmdNipCustomizeButton(3)"));
    desk.does("name=HeartRate; width=80");
    desk.does("Save field");
    EXPECT_THAT(desk.told(), IsEmpty());
    EXPECT_THAT(desk.fields(), StartsWith("HeartRate|The Pulse|TEXT|80"));
    EXPECT_EQ(desk.rows("Select HeartRate From NIP_Custom1"), "72");
    EXPECT_EQ(desk.pulse().text(), "99") << "not saved yet, not lost";
    EXPECT_TRUE(desk.panel.isModified());
    desk.does("Back; Save");
    EXPECT_EQ(desk.rows("Select HeartRate From NIP_Custom1"), "99");
}

TEST(Customizing, KeepsWhatAFieldHoldsWhenItIsDisplayedInAnotherWay) {
    const char* types[] = {"LIST-EDITCONTENT", "TEXT",     "LIST",
                           "LIST-MULTIPLE",    "COMBOBOX", "COMBOBOX-RESTRICTED"};
    for (const char* from : {"TEXT", "LIST-MULTIPLE"}) {
        for (const char* to : types) {
            SCOPED_TRACE(std::string(from) + " to " + to);
            CustomizingDesk desk(false);
            desk.db->quietly(std::string("Update DBFields Set DisplayType='") + from +
                             "' Where FieldName='Mood'");
            desk.db->quietly("Update NIP_Custom1 Set Mood='Poor|gone'");
            desk.panel.Initialize(desk.db);
            desk.panel.CustomizeNip();
            desk.does("Load; pulse=99; Customize");
            if (to == types[0])
                desk.does("field 0; display=LIST-MULTIPLE; Save field"); // also what was only just typed
            desk.does("field 1; display=" + QString(to) + "; Save field; Back; Save");
            EXPECT_THAT(desk.told(), IsEmpty());
            EXPECT_EQ(desk.rows("Select Pulse,Mood From NIP_Custom1"), "99|Poor|gone");
        }
    }
}

TEST(Customizing, ChoosesFieldsByKeysInTheListAndInTheForm) {
    CustomizingDesk desk;
    const std::tuple<const char*, Qt::Key, const char*> steps[] = {
        {"gridNipFields", Qt::Key_Down, "Editing field [Pulse] of group [Vitals]"},
        {"gridNipFields", Qt::Key_Down, "Editing field [Mood] of group [Vitals]"},
        {"gridNipFields", Qt::Key_F6, "Editing field [Mood] of group [Vitals]"},
        {"gridNip(0)", Qt::Key_Backtab, "Editing field [Mood] of group [Vitals]"},
        {"txtNip(0)", Qt::Key_Return, "Editing field [Pulse] of group [Vitals]"},
        {"gridNipFields", Qt::Key_Escape, "Fields of group [Vitals]"},
        {"gridNipFields", Qt::Key_Escape, "Fields of group [Vitals]"}};
    for (const auto& [part, key, heading] : steps) {
        EXPECT_TRUE(desk.part<QWidget>(part).hasFocus()) << part;
        QTest::keyClick(QApplication::focusWidget(), key);
        desk.settle();
        EXPECT_EQ(desk.heading(), heading);
    }
    EXPECT_FALSE(desk.part<QWidget>("paneCustomize").isVisible());
    EXPECT_THAT(desk.heard, IsEmpty()) << "back to the Nip, which stays open";
}

TEST(Customizing, AsksBeforeAFieldIsLeftAndDoesNothingElseMeanwhile) {
    for (const bool isNew : {true, false}) {
        const ShownBox question =
            isNew ? ShownBox{"Are you sure you want to cancel creating this field?", asksYesNo,
                             "Cancel field creation"}
                  : ShownBox{"Changes have been made to the field [Pulse] in the group [Vitals]. \nAre you "
                             "certain you want to discard those changes?",
                             asksOkCancel, "Discard Customization Confirmation"};
        const auto write = [&](CustomizingDesk& desk) {
            desk.does(isNew ? "New field; caption=Rate" : "field 0; caption=Rate");
            desk.user->whenShown = [&] { doEverything(desk); };
            return desk.pane();
        };
        CustomizingDesk stays;
        const std::string pane = write(stays);
        for (const WayOut& way : waysOut) {
            SCOPED_TRACE(testing::Message() << way.name << isNew);
            stays.user->answers = {isNew ? Answer::No : Answer::Cancel};
            EXPECT_FALSE(way.go(stays));
            EXPECT_THAT(stays.told(), ElementsAre(question));
            EXPECT_EQ(stays.pane(), pane);
            EXPECT_EQ(stays.tabs().currentIndex(), 0);
            EXPECT_TRUE(stays.part<QWidget>("cmdCloseNip").hasFocus());
        }
        for (const WayOut& way : waysOut) {
            SCOPED_TRACE(testing::Message() << way.name << isNew);
            CustomizingDesk leaves;
            write(leaves);
            leaves.user->answers = {isNew ? Answer::Yes : Answer::Ok};
            EXPECT_TRUE(way.go(leaves));
            EXPECT_THAT(leaves.told(), ElementsAre(question));
        }
    }
    for (const WayOut& way : waysOut) {
        CustomizingDesk unchanged;
        unchanged.does("field 0");
        EXPECT_TRUE(way.go(unchanged)) << way.name;
        EXPECT_THAT(unchanged.told(), IsEmpty()) << way.name;
    }
}

TEST(Customizing, AChoiceThatIsStillBeingTypedIsAChange) {
    CustomizingDesk desk;
    const auto type = [&](const char* text) {
        desk.does("field 1");
        auto& choices = desk.part<QAbstractItemView>("lstNipChoices");
        choices.setFocus();
        QTest::keyClick(&choices, Qt::Key_F2);
        QLineEdit* box = desk.panel.findChildren<QLineEdit*>("txtNipChoice").last();
        desk.type(*box, text);
        return box;
    };
    for (const auto& [text, leaves] : {std::pair{"Great", "Back"}, {"a|b", "ID_DeleteNipGroup"}}) {
        type(text);
        desk.does(leaves);
        EXPECT_THAT(desk.told(), ElementsAre(Field(&ShownBox::title, "Discard Customization Confirmation")));
        EXPECT_EQ(desk.heading(), "Editing field [Mood] of group [Vitals]");
        desk.user->answers = {Answer::Ok};
        desk.does("Cancel field");
        desk.told();
    }
    QTest::keyClick(type("Great"), Qt::Key_Return);
    desk.settle();
    EXPECT_EQ(desk.heading(), "Editing field [Mood] of group [Vitals]") << "Enter takes the choice alone";
    type("Greatest");
    desk.does("Save field");
    EXPECT_EQ(desk.choices(), "2|Mood|Greatest|True 2|Mood|Poor|False");
}

TEST(Customizing, RefusesWhatIsNoFieldAndKeepsWhatWasTyped) {
    const auto* duplicate = "The field name already exists in this Nip group.  Field names cannot be "
                            "duplicated.";
    const struct {
        const char* opening;
        const char* name;
        const char* width;
        const char* message;
        const char* title = "Field Name Validation";
    } cases[] = {
        {"New field", "My Field", "50", "The field name (My Field) is not a valid field name.  \n\n"},
        {"New field", "PULSE", "50", duplicate},
        {"field 0", "mood", "50", duplicate},
        {"field 0", "EncounterID", "50", "The name EncounterID is that of the group's key."},
        {"New field", "", "51",
         "An error occured while creating this field.  Please try again.  "
         "(ucNipPanel.SaveFieldCustomization-mnip.CreateField Failed. mcG=1, mcF=3\n\nA field needs a name",
         ""},
        {"field 1", "Mood", "3", "The longest choice does not fit.  It needs a width of 4.",
         "Field Validation"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.message);
        CustomizingDesk desk;
        const std::string before = desk.fields();
        desk.does(QString("%1; name=%2; width=%3; Save field").arg(c.opening, c.name, c.width));
        EXPECT_THAT(desk.told(), ElementsAre(AllOf(Field(&ShownBox::text, StartsWith(c.message)),
                                                   Field(&ShownBox::title, c.title))));
        EXPECT_EQ(desk.fields(), before);
        EXPECT_THAT(desk.pane(), HasSubstr(std::string(", ") + c.name + "|"));
        EXPECT_THAT(desk.pane(), HasSubstr(std::string("|") + c.width + "|"));
        desk.does("name=Fine; width=60; Save field");
        EXPECT_THAT(desk.told(), IsEmpty()) << "put right, it is taken";
        EXPECT_THAT(desk.fields(), HasSubstr("Fine|"));
    }
    CustomizingDesk desk;
    desk.does("New field; name=Temp; row=0");
    QTest::keyClick(&desk.name(), Qt::Key_Return);
    EXPECT_THAT(desk.told(), ElementsAre(says("The row position must be")));
    EXPECT_TRUE(desk.row().hasFocus());
}

TEST(Customizing, KeepsTheChoicesThatADisplayTypeDoesNotOfferAndATypeItDoesNotKnow) {
    CustomizingDesk desk;
    desk.does("field 1; display=TEXT");
    EXPECT_THAT(desk.says("lblNipChoices"), HasSubstr("not offered"));
    desk.does("Save field");
    EXPECT_EQ(desk.choices(), choicesOfMood);
    desk.db->quietly("Update DBFields Set DisplayType='SLIDER' Where FieldName='Mood'");
    desk.panel.Initialize(desk.db);
    desk.does("Customize; field 1; width=60; Save field");
    EXPECT_THAT(desk.fields(), HasSubstr("Mood|The Mood|SLIDER|60")) << "what another program displays";
}

TEST(Customizing, DeletesFieldsAndGroupsOnlyWhenTheUserIsSure) {
    CustomizingDesk desk;
    EXPECT_THAT(desk.says("lblCustDestroys"), HasSubstr("[Vitals] with its 2 fields and all"));
    EXPECT_FALSE(desk.offers("cmdNipCustomizeButton(1)"));
    desk.does("field 0");
    EXPECT_THAT(desk.says("lblCustDestroys"), HasSubstr("destroys [Pulse]"));
    const ShownBox field{"Are you certain you wish to delete this field?  All data in the field will be "
                         "permenantly lost.",
                         asksWarily, "Delete Confirmation"};
    const ShownBox group{"Deleting a Nip Group will also delete all fields in the group.\nThis is a "
                         "destructive action that cannot be reversed.  Do you wish to continue?",
                         asksWarily, "Delete Group Confirmation"};
    desk.user->answers = {Answer::Cancel, Answer::Ok, Answer::Cancel, Answer::Ok};
    desk.does("Delete field");
    EXPECT_EQ(desk.listed() + desk.rows("Select Pulse From NIP_Custom1"), "Pulse Mood72");
    desk.does("Delete field");
    EXPECT_EQ(desk.listed(), "Mood");
    EXPECT_THAT(desk.fields(), Not(HasSubstr("Pulse")));
    for (const int left : {2, 1}) {
        desk.does("ID_DeleteNipGroup");
        EXPECT_EQ(desk.tabs().count(), left);
    }
    EXPECT_THAT(desk.told(), ElementsAre(field, field, group, group));
}

TEST(Customizing, MakesAGroupOfTheNameThatItIsGiven) {
    CustomizingDesk desk;
    desk.user->texts = {std::nullopt, "", "  ", std::string(300, 'g'), "R&D"};
    desk.does("ID_NewNipGroup; ID_NewNipGroup; ID_NewNipGroup; ID_NewNipGroup");
    EXPECT_EQ(desk.tabs().count(), 2);
    EXPECT_EQ(desk.told().size(), 3U) << "no name, twice, and one that is too long";
    EXPECT_EQ(desk.user->inputs.at(0),
              (ShownInput{"What is the name of the group you would like to create", "New group name"}));
    QTest::keyClick(&desk.list(), Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return desk.tabs().count() == 3; }));
    EXPECT_EQ(desk.heading(), "Fields of group [R&D]");
    EXPECT_EQ(desk.rows("Select TableName From DBFieldGroups Where GroupName='R&D'"), "NIP_Custom3");
}

TEST(Customizing, WhatFailsChangesNothingAndCanBeTriedAgain) {
    const struct {
        const char* failsOn;
        const char* opening;
        const char* act;
        const char* report;
    } cases[] = {
        {"Insert Into DBFields", "New field; caption=Weight", "Save field",
         "System error: Unable to save this field."},
        {"Insert Into DBFieldGroups", "tab 0", "ID_NewNipGroup",
         "System error: Unable to create this Nip group"},
        {"Delete From DBFieldGroups", "tab 0", "ID_DeleteNipGroup",
         "System error: Unable to remove this nip group."},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.report);
        CustomizingDesk desk;
        const std::string before = desk.fields();
        desk.does(c.opening);
        desk.user->texts = {"Labs", "Labs"};
        desk.user->answers = {Answer::Ok, Answer::Ok};
        desk.db->failOn = c.failsOn;
        const std::string pane = desk.pane();
        desk.does(c.act);
        const auto report = testing::Contains(
            AllOf(Field(&ShownBox::text, StartsWith(c.report)), Field(&ShownBox::style, 48)));
        EXPECT_THAT(desk.told(), report);
        EXPECT_EQ(desk.fields(), before);
        EXPECT_EQ(desk.tabs().count(), 2);
        EXPECT_EQ(desk.pane(), pane);
        desk.db->failOn.clear();
        desk.user->answers = {Answer::Ok};
        desk.does(c.act);
        EXPECT_THAT(desk.told(), Not(report));
        EXPECT_TRUE(desk.fields() != before || desk.tabs().count() != 2);
    }
}

TEST(Customizing, TakesOnWhatAnotherDeskHasChangedAndKeepsWhatIsWritten) {
    const std::function<void(CustomizingDesk&)> saves[] = {[](auto& d) { d.does("Save field"); },
                                                           [](auto& d) { d.panel.SaveNipInfo(); }};
    for (const auto& save : saves) {
        CustomizingDesk desk;
        desk.does("field 1; width=60");
        desk.elsewhere([](cNIP& other) {
            return other.EditField(1, 2,
                                   {.fieldName = "Feeling",
                                    .caption = "The Mood",
                                    .maxLength = 50,
                                    .displayType = "COMBOBOX",
                                    .initialValueRule = 1,
                                    .values = {"Good", "Fair", "Poor"},
                                    .defaultValue = "Fair"}) &&
                   other.SaveStructure() && other.DeleteField(1, 1);
        });
        save(desk);
        EXPECT_THAT(desk.told(), ElementsAre(says("nother desk has customized th")));
        EXPECT_EQ(desk.pane(), "Editing field [Feeling] of group [Vitals]: Feeling, Feeling|The Mood|60|1");
        desk.does("Save field");
        EXPECT_THAT(desk.told(), IsEmpty());
        EXPECT_THAT(desk.fields(), HasSubstr("Feeling|The Mood|COMBOBOX|60"));
        EXPECT_EQ(desk.choices(), "2|Feeling|Good|False 2|Feeling|Fair|True 2|Feeling|Poor|False");
    }
    CustomizingDesk desk;
    desk.elsewhere([](cNIP& other) { return other.DeleteField(1, 1); });
    desk.user->texts = {"Labs"};
    desk.does("ID_NewNipGroup");
    EXPECT_THAT(desk.told(), IsEmpty());
    EXPECT_EQ(desk.heading(), "Fields of group [Labs]") << "made as it was asked for";
    EXPECT_EQ(desk.tabs().count(), 3);
    desk.does("tab 0");
    EXPECT_EQ(desk.listed(), "Mood");
}

TEST(Customizing, OffersWhatWasWrittenForAFieldThatIsGoneAsANewOne) {
    const auto deleteVitals = [](cNIP& other) { return other.DeleteGroup(1); };
    const struct {
        const char* opening;
        std::function<bool(cNIP&)> act;
        const char* gone;
        const char* group;
        const char* before;
        const char* choices;
    } cases[] = {
        {"field 1", [](cNIP& other) { return other.DeleteField(1, 2); },
         "The field [Mood] is no longer there.", "Vitals", "Pulse, Mood|How they feel|50|", ""},
        {"field 1", deleteVitals, "The field [Mood] is no longer there.", "History",
         "Smoker, Mood|How they feel|50|", " 3|Mood|Good|True 3|Mood|Poor|False"},
        {"New field; name=Mood2", deleteVitals, "The group of the new field is no longer there.", "History",
         "Smoker, Mood2|How they feel|50|", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.gone) + c.group);
        CustomizingDesk desk;
        desk.does(QString(c.opening) + "; caption=How they feel");
        desk.elsewhere(c.act);
        desk.does("Save field");
        EXPECT_THAT(desk.told(),
                    ElementsAre(AllOf(says("Another desk has customized this form"), says(c.gone),
                                      says(std::string("a new field of the group [") + c.group))));
        EXPECT_EQ(desk.pane(), std::string("New field in group [") + c.group + "]: " + c.before);
        EXPECT_EQ(desk.tabs().tabText(desk.tabs().currentIndex()), c.group);
        desk.does("Save field");
        EXPECT_THAT(desk.told(), IsEmpty());
        EXPECT_EQ(desk.choices(), choicesOfMood + std::string(c.choices));
    }
    for (const bool opensNip : {true, false}) {
        CustomizingDesk desk(opensNip);
        desk.does("field 1; caption=How they feel");
        desk.db->failOn = "DBFields"; // what is shown could not be read again either
        desk.does("Save field");
        desk.db->failOn.clear();
        desk.elsewhere(deleteVitals);
        desk.does("Save field");
        EXPECT_EQ(desk.pane(), "New field in group [History]: Smoker, Mood|How they feel|50|")
            << "not stored unasked";
        desk.elsewhere(deleteVitals);
        desk.does("Save field");
        EXPECT_THAT(desk.told(), testing::Contains(says("There is no group left")));
        EXPECT_THAT(desk.errorLog(), HasSubstr("[Mood] How they feel, LIST 50: Good|Poor"));
    }
}

TEST(Customizing, AStructureThatCannotBeReadAgainIsReadBeforeItIsNeeded) {
    for (const bool savesField : {true, false}) {
        CustomizingDesk desk;
        desk.does("Back; pulse=99; Customize; New field; caption=Weight");
        desk.db->failOn = "DBFields";
        desk.does("Save field");
        EXPECT_THAT(desk.told().back(), says("could not be read from the database again"));
        EXPECT_EQ(utf8(desk.pulse().text()) + desk.caption(), "99Weight");
        desk.db->failOn.clear();
        if (savesField) desk.does("Save field");
        desk.panel.SaveNipInfo();
        EXPECT_THAT(desk.told(), IsEmpty());
        EXPECT_EQ(desk.rows("Select Pulse From NIP_Custom1"), "99");
        EXPECT_EQ(desk.caption(), savesField ? "" : "Weight");
        EXPECT_EQ(desk.listed(), savesField ? "Pulse Mood Weight" : "Pulse Mood");
    }
}

TEST(Customizing, WorksWithoutAnOpenNip) {
    CustomizingDesk desk(false);
    desk.panel.CustomizeOnly(true);
    desk.does("tab 1; txtNip(1)");
    EXPECT_EQ(desk.heading(), "Editing field [Smoker] of group [History]");
    desk.does("caption=Smokes?; Save field");
    EXPECT_THAT(desk.fields(), HasSubstr("Smoker|Smokes?"));
    EXPECT_TRUE(desk.list().hasFocus());
    EXPECT_EQ(desk.tabs().currentIndex(), 1);
    desk.does("New field");
    desk.user->answers = {Answer::No, Answer::Yes};
    EXPECT_FALSE(desk.panel.requestClose());
    EXPECT_TRUE(desk.panel.requestClose());
    EXPECT_THAT(desk.heard, ElementsAre("closed"));
}

} // namespace Korvane
