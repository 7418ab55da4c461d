#include "support/CustomizingDesk.h"

#include <korvane/nip/cNIP.h>

#include <QAbstractItemView>
#include <QDialog>
#include <QHeaderView>
#include <QPointer>
#include <QVBoxLayout>

#include <gmock/gmock.h>

namespace Korvane {

using namespace Testing;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

constexpr int asksYesNo = MsgBoxStyle::YesNo | MsgBoxStyle::Question;
constexpr int asksOkCancel = MsgBoxStyle::OkCancel | MsgBoxStyle::Question;

/// One way to leave a field that is being written, and whether it got anywhere.
struct WayOut {
    const char* name;
    std::function<bool(CustomizingDesk&)> go;
};

const WayOut waysOut[] = {
    {"Cancel", [](CustomizingDesk& d) { return d.cancelField(), d.heading() == "Fields of group [Vitals]"; }},
    {"New Field", [](CustomizingDesk& d) { return d.newField(), d.name().text().isEmpty(); }},
    {"another field in the list",
     [](CustomizingDesk& d) { return d.chooseListed(1), d.name().text() == "Mood"; }},
    {"another field in the form",
     [](CustomizingDesk& d) { return d.clickInForm("lblNip(1)"), d.name().text() == "Mood"; }},
    {"another tab", [](CustomizingDesk& d) { return d.chooseTab(1), d.tabs().currentIndex() == 1; }},
    {"the tool of the group",
     [](CustomizingDesk& d) { return d.tool("ID_CustomizeNipGroup"), d.name().text().isEmpty(); }},
    {"back to the Nip",
     [](CustomizingDesk& d) {
         return d.click("cmdBackToNip"), !d.part<QWidget>("paneCustomize").isVisible();
     }},
    {"the pane's close button",
     [](CustomizingDesk& d) { return d.click("cmdCloseNipCustomize"), !d.heard.empty(); }},
    {"customizing again",
     [](CustomizingDesk& d) { return d.panel.CustomizeNip(), d.name().text().isEmpty(); }},
    {"the host's load", [](CustomizingDesk& d) { return d.panel.LoadNipInfo(7, "P1"); }},
    {"the host's new Nip", [](CustomizingDesk& d) { return d.panel.CreateNip("P2"); }},
};

} // namespace

TEST(Customizing, MakesAFieldFromWhatIsTyped) {
    CustomizingDesk desk;
    desk.type(desk.pulse(), "99"); // means nothing while the form is customized
    EXPECT_EQ(desk.pulse().text(), "72");
    desk.newField();
    EXPECT_EQ(desk.heading(), "New field in group [Vitals]");
    EXPECT_FALSE(desk.offers("cmdNipCustomizeButton(3)")) << "nothing to save yet";
    desk.type(desk.caption(), "2nd pulse (rest)");
    EXPECT_EQ(desk.name().text(), "ndpulserest") << "a name is proposed";
    desk.type(desk.name(), "RestPulse");
    desk.type(desk.caption(), "Resting pulse");
    EXPECT_EQ(desk.name().text(), "RestPulse") << "but not over one's own";
    QTest::keyClicks(&desk.displayType(), "List-M");
    desk.type(desk.row(), "1");
    QTest::keyClick(&desk.row(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(desk.user->boxes, IsEmpty());
    EXPECT_THAT(desk.fields(), HasSubstr("RestPulse|Resting pulse|LIST-MULTIPLE|50"));
    EXPECT_EQ(desk.listed(), "RestPulse Pulse Mood");
    EXPECT_EQ(desk.rows("Select RestPulse From NIP_Custom1"), "NULL");
    EXPECT_TRUE(desk.description().hasFocus());
    EXPECT_EQ(desk.heading(), "Fields of group [Vitals]");
    EXPECT_TRUE(desk.part<QWidget>("gridNip(0)").isVisible());
}

TEST(Customizing, ChangesAFieldAndKeepsItsDataAndTheEntriesOfTheOpenNip) {
    CustomizingDesk desk;
    desk.click("cmdBackToNip");
    desk.type(desk.pulse(), "99");
    desk.click("cmdNipButton(2)");
    desk.clickInForm("txtNip(0)");
    EXPECT_EQ(desk.heading(), "Editing field [Pulse] of group [Vitals]");
    EXPECT_TRUE(desk.part<QWidget>("markNipField").geometry().contains(desk.pulse().geometry()));
    EXPECT_EQ(desk.list().currentItem()->text(0), "Pulse");
    EXPECT_FALSE(desk.offers("cmdNipCustomizeButton(3)"));
    desk.type(desk.name(), "HeartRate");
    desk.type(desk.width(), "80");
    EXPECT_EQ(desk.name().accessibleDescription(), "Changed; it was Pulse");
    desk.saveField();
    EXPECT_THAT(desk.user->boxes, IsEmpty());
    EXPECT_THAT(desk.fields(), StartsWith("HeartRate|The Pulse|TEXT|80"));
    EXPECT_EQ(desk.rows("Select HeartRate From NIP_Custom1"), "72");
    EXPECT_EQ(desk.pulse().text(), "99") << "not saved yet, not lost";
    EXPECT_TRUE(desk.panel.isModified());
    desk.click("cmdBackToNip");
    desk.save();
    EXPECT_EQ(desk.rows("Select HeartRate From NIP_Custom1"), "99");
}

TEST(Customizing, KeepsWhatAFieldHoldsWhenItIsDisplayedInAnotherWay) {
    const char* types[] = {
        "TEXT", "LIST", "LIST-MULTIPLE", "LIST-EDITCONTENT", "COMBOBOX", "COMBOBOX-RESTRICTED"};
    for (const char* from : {"TEXT", "LIST-MULTIPLE"}) {
        for (const char* to : types) {
            SCOPED_TRACE(std::string(from) + " to " + to);
            CustomizingDesk desk(false);
            desk.db->quietly("Update DBFields Set DisplayType='" + std::string(from) +
                             "' Where FieldName='Mood'");
            desk.db->quietly("Update NIP_Custom1 Set Mood='Poor|gone'");
            desk.panel.Initialize(desk.db);
            desk.panel.CustomizeNip();
            desk.panel.LoadNipInfo(7, "P1");
            desk.type(desk.pulse(), "99");
            desk.click("cmdNipButton(2)");
            desk.chooseListed(1);
            desk.displayType().setCurrentIndex(desk.displayType().findData(to));
            desk.saveField();
            desk.click("cmdBackToNip");
            desk.save();
            EXPECT_THAT(desk.user->boxes, IsEmpty());
            EXPECT_EQ(desk.rows("Select Pulse,Mood From NIP_Custom1"), "99|Poor|gone");
        }
    }
    CustomizingDesk desk;
    desk.click("cmdBackToNip");
    desk.type(desk.pulse(), "99");
    desk.click("cmdNipButton(2)");
    desk.chooseListed(0);
    desk.displayType().setCurrentIndex(desk.displayType().findData("LIST-EDITCONTENT"));
    desk.saveField();
    desk.click("cmdBackToNip");
    desk.save();
    EXPECT_EQ(desk.rows("Select Pulse From NIP_Custom1"), "99") << "also what was only just typed";
}

TEST(Customizing, ChoosesFieldsByKeysInTheListAndInTheForm) {
    CustomizingDesk desk;
    EXPECT_TRUE(desk.list().hasFocus());
    EXPECT_EQ(desk.heading(), "Fields of group [Vitals]") << "the focus alone chooses nothing";
    for (const char* name : {"Pulse", "Mood"}) {
        QTest::keyClick(&desk.list(), Qt::Key_Down);
        desk.settle();
        EXPECT_EQ(utf8(desk.name().text()), name);
    }
    EXPECT_EQ(desk.heading(), "Editing field [Mood] of group [Vitals]");
    QTest::keyClick(&desk.list(), Qt::Key_F6);
    EXPECT_TRUE(desk.part<QWidget>("gridNip(0)").hasFocus());
    QTest::keyClick(&desk.part<QWidget>("gridNip(0)"), Qt::Key_Backtab);
    EXPECT_TRUE(desk.pulse().hasFocus());
    QTest::keyClick(&desk.pulse(), Qt::Key_Return);
    desk.settle();
    EXPECT_EQ(desk.heading(), "Editing field [Pulse] of group [Vitals]");
    EXPECT_TRUE(desk.list().hasFocus());
    QTest::keyClick(&desk.list(), Qt::Key_Escape);
    EXPECT_EQ(desk.heading(), "Fields of group [Vitals]");
    QTest::keyClick(&desk.list(), Qt::Key_Escape);
    EXPECT_FALSE(desk.part<QWidget>("paneCustomize").isVisible());
    EXPECT_THAT(desk.heard, IsEmpty()) << "back to the Nip, which stays open";
}

TEST(Customizing, TabGoesThroughThePaneInTheOrderInWhichItIsRead) {
    CustomizingDesk desk;
    desk.chooseListed(0);
    desk.type(desk.caption(), "Rate");
    std::vector<std::string> order;
    for (QWidget* w = &desk.list(); w != &desk.part<QWidget>("cmdNipButton(0)"); w = w->nextInFocusChain())
        if (w->focusPolicy() & Qt::TabFocus && w->isVisible() && w->isEnabled() &&
            !w->objectName().startsWith("qt_"))
            order.push_back(utf8(w->objectName()));
    EXPECT_THAT(order, ElementsAre("gridNipFields", "txtCustNip(0)", "txtCustNip(1)", "cboCustNip(0)",
                                   "txtCustNip(2)", "cboCustNip(1)", "txtCustNip(3)", "lstNipChoices",
                                   "cmdNipChoices(0)", "cmdNipCustomizeButton(0)", "cmdNipCustomizeButton(1)",
                                   "cmdNipCustomizeButton(2)", "cmdNipCustomizeButton(3)"));
}

TEST(Customizing, TabReachesWhatStandsAboveTheForm) {
    CustomizingDesk desk;
    auto& tools = desk.part<QToolBar>("ToolBars1");
    std::vector<QWidget*> expected;
    for (QAction* tool : tools.actions())
        expected.push_back(tools.widgetForAction(tool));
    for (const char* name : {"cmdBackToNip", "cmdCloseNipCustomize", "cmdCloseNip", "txtEncounterInfo"})
        expected.push_back(&desk.part<QWidget>(name));
    desk.part<QWidget>("cmdNipButton(1)").setFocus();
    for (const QWidget* next : expected) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_TRUE(next->hasFocus()) << utf8(next->objectName());
    }
}

TEST(Customizing, WhatIsWrongIsInViewWithTheFocus) {
    CustomizingDesk desk;
    desk.panel.resize(700, 350);
    desk.newField();
    desk.type(desk.name(), "Temp");
    desk.type(desk.row(), "0");
    desk.name().setFocus();
    QTest::keyClick(&desk.name(), Qt::Key_Return);
    EXPECT_THAT(desk.lastBox().text, StartsWith("The row position must be"));
    EXPECT_TRUE(desk.row().hasFocus());
    EXPECT_EQ(desk.row().visibleRegion().boundingRect(), desk.row().rect());
}

TEST(Customizing, AsksBeforeAFieldIsLeft) {
    for (const WayOut& way : waysOut) {
        for (const bool isNew : {true, false}) {
            for (const bool agrees : {false, true}) {
                SCOPED_TRACE(testing::Message() << way.name << isNew << agrees);
                CustomizingDesk desk;
                if (isNew)
                    desk.newField();
                else
                    desk.chooseListed(0);
                desk.type(desk.caption(), "Rate");
                desk.user->answers = {agrees ? (isNew ? Answer::Yes : Answer::Ok)
                                             : (isNew ? Answer::No : Answer::Cancel)};
                EXPECT_EQ(way.go(desk), agrees);
                const ShownBox expected =
                    isNew ? ShownBox{"Are you sure you want to cancel creating this field?", asksYesNo,
                                     "Cancel field creation"}
                          : ShownBox{"Changes have been made to the field [Pulse] in the group [Vitals]. "
                                     "\nAre you certain you want to discard those changes?",
                                     asksOkCancel, "Discard Customization Confirmation"};
                EXPECT_THAT(desk.user->boxes, ElementsAre(expected));
                if (agrees) continue;
                EXPECT_EQ(desk.caption().text(), "Rate");
                EXPECT_EQ(desk.tabs().currentIndex(), 0);
                EXPECT_TRUE(desk.part<QWidget>("cmdCloseNip").hasFocus());
            }
        }
    }
}

TEST(Customizing, AChoiceThatIsStillBeingTypedIsAChange) {
    const auto type = [](CustomizingDesk& desk, int field, const char* text) {
        desk.chooseListed(field);
        auto& choices = desk.part<QAbstractItemView>("lstNipChoices");
        choices.setFocus();
        QTest::keyClick(&choices, Qt::Key_F2);
        auto& box = desk.part<QLineEdit>("txtNipChoice");
        desk.type(box, text);
        return &box;
    };
    for (const WayOut& way : waysOut) {
        for (const char* text : {"Great", "a|b"}) {
            SCOPED_TRACE(std::string(way.name) + text);
            CustomizingDesk desk(false);
            desk.allowed(2, "Pulse", "Good", 1);
            desk.panel.Initialize(desk.db);
            type(desk, 0, text);
            EXPECT_FALSE(way.go(desk));
            ASSERT_EQ(desk.user->boxes.size(), 1U);
            EXPECT_EQ(desk.lastBox().title, "Discard Customization Confirmation");
            EXPECT_EQ(desk.heading(), "Editing field [Pulse] of group [Vitals]");
        }
    }
    CustomizingDesk desk;
    QTest::keyClick(type(desk, 1, "Great"), Qt::Key_Return);
    desk.settle();
    EXPECT_EQ(desk.heading(), "Editing field [Mood] of group [Vitals]") << "Enter takes the choice alone";
    type(desk, 1, "Greatest");
    EXPECT_TRUE(desk.offers("cmdNipCustomizeButton(3)"));
    desk.saveField();
    EXPECT_EQ(desk.rows("Select FieldValue From DBFieldValues Order By Ordinal"), "Greatest Poor");
}

TEST(Customizing, LeavesAFieldWithoutChangesUnasked) {
    for (const WayOut& way : waysOut) {
        CustomizingDesk desk;
        desk.chooseListed(0);
        EXPECT_TRUE(way.go(desk)) << way.name;
        EXPECT_THAT(desk.user->boxes, IsEmpty()) << way.name;
    }
}

TEST(Customizing, RefusesWhatIsNoFieldAndKeepsWhatWasTyped) {
    struct Case {
        int field; ///< -1: a new one
        const char* name;
        const char* width;
        const char* message;
        const char* title;
    };
    const std::string duplicate =
        "The field name already exists in this Nip group.  Field names cannot be duplicated.";
    const Case cases[] = {
        {-1, "My Field", "50",
         "The field name (My Field) is not a valid field name.  \n\nField names cannot contain spaces, "
         "quotation "
         "marks, or special characters and must begin with a letter.",
         "Field Name Validation"},
        {0, "1Temp", "50", "The field name (1Temp) is not a valid field name.  ", "Field Name Validation"},
        {-1, "PULSE", "50", duplicate.c_str(), "Field Name Validation"},
        {0, "mood", "50", duplicate.c_str(), "Field Name Validation"},
        {-1, "encounterid", "50", "The name encounterid is that of the group's key.",
         "Field Name Validation"},
        {0, "EncounterID", "50", "The name EncounterID is that of the group's key.", "Field Name Validation"},
        {-1, "", "51",
         "An error occured while creating this field.  Please try again.  "
         "(ucNipPanel.SaveFieldCustomization-mnip.CreateField Failed. mcG=1, mcF=3\n\nA field needs a name",
         ""},
        {-1, "Temp", "0", "The width must be a whole number from 1 to 32767.", "Field Validation"},
        {0, "Temp", "40000", "The width must be a whole number from 1 to 32767.", "Field Validation"},
        {1, "Mood", "3", "The longest choice does not fit.  It needs a width of 4.", "Field Validation"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name + std::string(c.width));
        CustomizingDesk desk;
        const std::string before = desk.fields();
        if (c.field < 0)
            desk.newField();
        else
            desk.chooseListed(c.field);
        desk.name().clear();
        desk.type(desk.name(), c.name);
        desk.type(desk.width(), c.width);
        desk.saveField();
        ASSERT_EQ(desk.user->boxes.size(), 1U);
        EXPECT_THAT(desk.lastBox().text, StartsWith(c.message));
        EXPECT_EQ(desk.lastBox().title, c.title);
        EXPECT_EQ(desk.fields(), before);
        EXPECT_EQ(utf8(desk.name().text() + desk.width().text()), std::string(c.name) + c.width);

        desk.user->clear();
        desk.type(desk.name(), "Fine");
        desk.type(desk.width(), "60");
        desk.saveField();
        EXPECT_THAT(desk.user->boxes, IsEmpty()) << "put right, it is taken";
        EXPECT_THAT(desk.fields(), HasSubstr("Fine|"));
    }
}

TEST(Customizing, SaysWhatIsDestroyedAndWhatTheChoicesAreFor) {
    CustomizingDesk desk;
    const auto says = [&](const char* label) { return utf8(desk.part<QLabel>(label).text()); };
    EXPECT_THAT(says("lblCustDestroys"), HasSubstr("[Vitals] with its 2 fields and all"));
    desk.chooseTab(1);
    EXPECT_THAT(says("lblCustDestroys"), HasSubstr("[History] with its 1 field and all"));
    desk.chooseTab(0);
    EXPECT_TRUE(desk.part<QLabel>("lblCustHint").isVisible());
    EXPECT_FALSE(desk.name().isVisible()) << "there is nothing to write it for";

    const int top = desk.list().mapTo(&desk.panel, QPoint()).y();
    desk.chooseListed(1);
    EXPECT_EQ(desk.list().mapTo(&desk.panel, QPoint()).y(), top) << "it moved away under the mouse";
    EXPECT_FALSE(desk.part<QLabel>("lblCustHint").isVisible());
    EXPECT_EQ(utf8(desk.list().topLevelItem(1)->text(2)), "List");
    EXPECT_THAT(says("lblNipChoices"), StartsWith("Choices (the checked"));
    desk.displayType().setCurrentText("Text");
    EXPECT_THAT(says("lblNipChoices"), HasSubstr("not offered"));
    desk.saveField();
    EXPECT_EQ(desk.rows("Select FieldValue,DefaultValue From DBFieldValues Order By Ordinal"),
              "Good|True Poor|False");
}

TEST(Customizing, ShowsEveryColumnOfTheListAndALineOfItInLargeText) {
    CustomizingDesk desk;
    QFont large = desk.panel.font();
    large.setPointSizeF(large.pointSizeF() * 3);
    desk.panel.setFont(large);
    desk.settle();
    EXPECT_LE(desk.list().header()->length(), desk.list().viewport()->width());
    EXPECT_GE(desk.list().viewport()->height(),
              2 * desk.list().visualItemRect(desk.list().topLevelItem(0)).height());
    EXPECT_FALSE(desk.part<QPushButton>("cmdNipButton(0)").isDefault()) << "the field's Save is the nearer";
    desk.click("cmdBackToNip");
    EXPECT_TRUE(desk.part<QPushButton>("cmdNipButton(0)").isDefault());
}

TEST(Customizing, DeletesAFieldOnlyWhenTheUserIsSure) {
    CustomizingDesk desk;
    EXPECT_FALSE(desk.offers("cmdNipCustomizeButton(1)"));
    desk.chooseListed(0);
    EXPECT_THAT(utf8(desk.part<QLabel>("lblCustDestroys").text()), HasSubstr("destroys [Pulse]"));
    desk.user->answers = {Answer::Cancel, Answer::Ok};
    desk.deleteField();
    EXPECT_EQ(desk.listed(), "Pulse Mood");
    EXPECT_EQ(desk.rows("Select Pulse From NIP_Custom1"), "72");
    desk.deleteField();
    EXPECT_EQ(desk.listed(), "Mood");
    EXPECT_THAT(desk.fields(), testing::Not(HasSubstr("Pulse")));
    EXPECT_EQ(desk.user->boxes.size(), 2U);
    EXPECT_EQ(
        desk.lastBox(),
        (ShownBox{"Are you certain you wish to delete this field?  All data in the field will be permenantly "
                  "lost.",
                  asksOkCancel | MsgBoxStyle::DefaultButton2, "Delete Confirmation"}));
}

TEST(Customizing, MakesAndDeletesGroupsByTheirTools) {
    CustomizingDesk desk;
    desk.user->texts = {std::nullopt, "", "  ", std::string(300, 'g'), "R&D"};
    for (int i = 0; i < 4; ++i)
        desk.tool("ID_NewNipGroup");
    EXPECT_EQ(desk.tabs().count(), 2);
    EXPECT_EQ(desk.user->boxes.size(), 3U) << "no name, twice, and one that is too long";
    EXPECT_EQ(desk.user->inputs.at(0),
              (ShownInput{"What is the name of the group you would like to create", "New group name"}));
    QTest::keyClick(&desk.list(), Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return desk.tabs().count() == 3; }));
    EXPECT_EQ(desk.tabs().currentIndex(), 2);
    EXPECT_EQ(desk.heading(), "Fields of group [R&D]");
    EXPECT_EQ(desk.rows("Select TableName From DBFieldGroups Where GroupName='R&D'"), "NIP_Custom3");

    desk.user->clear();
    desk.user->answers = {Answer::Cancel, Answer::Ok};
    desk.tool("ID_DeleteNipGroup");
    EXPECT_EQ(desk.tabs().count(), 3);
    desk.tool("ID_DeleteNipGroup");
    EXPECT_EQ(desk.tabs().count(), 2);
    EXPECT_EQ(
        desk.lastBox(),
        (ShownBox{
            "Deleting a Nip Group will also delete all fields in the group.\nThis is a destructive action "
            "that cannot be reversed.  Do you wish to continue?",
            asksOkCancel | MsgBoxStyle::DefaultButton2, "Delete Group Confirmation"}));
}

TEST(Customizing, WhatFailsChangesNothingAndCanBeTriedAgain) {
    struct Case {
        const char* failsOn;
        std::function<void(CustomizingDesk&)> act;
        const char* report;
    };
    const Case cases[] = {
        {"Insert Into DBFields", [](CustomizingDesk& d) { d.saveField(); },
         "System error: Unable to save this field."},
        {"Insert Into DBFieldGroups", [](CustomizingDesk& d) { d.tool("ID_NewNipGroup"); },
         "System error: Unable to create this Nip group"},
        {"Delete From DBFieldGroups", [](CustomizingDesk& d) { d.tool("ID_DeleteNipGroup"); },
         "System error: Unable to remove this nip group."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.report);
        CustomizingDesk desk;
        const std::string before = desk.fields();
        const bool saves = &c == &cases[0];
        if (saves) {
            desk.newField();
            desk.type(desk.caption(), "Weight");
        }
        desk.user->texts = {"Labs", "Labs"};
        desk.user->answers = {Answer::Ok, Answer::Ok};
        desk.db->failOn = c.failsOn;
        c.act(desk);
        const auto isReport = [&](const ShownBox& box) {
            return box.text.starts_with(c.report) && box.style == 48;
        };
        EXPECT_TRUE(std::any_of(desk.user->boxes.begin(), desk.user->boxes.end(), isReport));
        EXPECT_EQ(desk.fields(), before);
        EXPECT_EQ(desk.tabs().count(), 2);
        EXPECT_EQ(desk.listed(), "Pulse Mood");
        if (saves) {
            EXPECT_EQ(desk.caption().text(), "Weight");
        }

        desk.db->failOn.clear();
        desk.user->clear();
        desk.user->answers = {Answer::Ok};
        c.act(desk);
        EXPECT_TRUE(std::none_of(desk.user->boxes.begin(), desk.user->boxes.end(), isReport));
        EXPECT_TRUE(desk.fields() != before || desk.tabs().count() != 2);
    }
}

TEST(Customizing, TakesOnWhatAnotherDeskHasChangedAndKeepsWhatIsWritten) {
    CustomizingDesk desk;
    desk.chooseListed(1);
    desk.type(desk.caption(), "How they feel");
    cNIP other;
    ASSERT_TRUE(other.LoadStructure(desk.db));
    ASSERT_TRUE(other.DeleteField(1, 1));
    desk.saveField();
    EXPECT_THAT(desk.user->boxes.at(0).text, HasSubstr("Another desk has customized this form"));
    EXPECT_EQ(desk.listed(), "Mood");
    EXPECT_EQ(desk.heading(), "Editing field [Mood] of group [Vitals]");
    desk.saveField();
    EXPECT_THAT(desk.fields(), HasSubstr("Mood|How they feel"));
}

TEST(Customizing, OffersWhatWasWrittenForAFieldThatIsGoneAsANewOne) {
    struct Case {
        const char* gone;
        bool isNew;
        std::function<bool(cNIP&)> act;
        const char* group;
        const char* groupID;
        const char* listed;
    };
    const auto deleteMood = [](cNIP& other) { return other.DeleteField(1, 2); };
    const auto deleteVitals = [](cNIP& other) { return other.DeleteGroup(1); };
    const Case cases[] = {
        {"The field [Mood] is no longer there.", false, deleteMood, "[Vitals]", "2", "Pulse Mood"},
        {"The field [Mood] is no longer there.", false, deleteVitals, "[History]", "3", "Smoker Mood"},
        {"The group of the new field is no longer there.", true, deleteVitals, "[History]", "3",
         "Smoker Mood2"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.gone) + c.group);
        CustomizingDesk desk;
        if (c.isNew) {
            desk.newField();
            desk.type(desk.name(), "Mood2");
        } else {
            desk.chooseListed(1);
        }
        desk.type(desk.caption(), "How they feel");
        cNIP other;
        ASSERT_TRUE(other.LoadStructure(desk.db) && c.act(other));
        desk.saveField();
        ASSERT_EQ(desk.user->boxes.size(), 1U);
        EXPECT_THAT(desk.lastBox().text,
                    AllOf(HasSubstr("Another desk has customized this form"), HasSubstr(c.gone),
                          HasSubstr(std::string("a new field of the group ") + c.group)));
        EXPECT_EQ(desk.heading(), std::string("New field in group ") + c.group);
        EXPECT_EQ(desk.tabs().tabText(desk.tabs().currentIndex()), QString(c.group).mid(1).chopped(1));
        EXPECT_EQ(desk.caption().text(), "How they feel");
        desk.saveField();
        EXPECT_EQ(desk.user->boxes.size(), 1U);
        EXPECT_EQ(desk.listed(), c.listed);
        EXPECT_EQ(desk.rows("Select FieldValue,DefaultValue From DBFieldValues Where FieldName='Mood' And "
                            "DBFieldGroupID=" +
                            std::string(c.groupID) + " Order By Ordinal"),
                  c.isNew ? "" : "Good|True Poor|False");
    }
}

TEST(Customizing, EnterOnAComboBoxStoresTheFieldOnceItsListIsClosed) {
    CustomizingDesk desk;
    QDialog around;
    auto* layout = new QVBoxLayout(&around);
    auto* standard = new QPushButton(&around);
    standard->setDefault(true);
    layout->addWidget(standard);
    layout->addWidget(&desk.panel);
    around.show();
    around.activateWindow();
    desk.chooseListed(0);
    QComboBox& type = desk.displayType();
    type.setFocus();
    type.showPopup();
    QTest::keyClick(type.view(), Qt::Key_End);
    QTest::keyClick(type.view(), Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !type.view()->isVisible(); }));
    EXPECT_EQ(type.currentText(), "Combobox-Restricted");
    EXPECT_THAT(desk.fields(), StartsWith("Pulse|The Pulse|TEXT|"));
    int pressed = 0;
    QObject::connect(standard, &QPushButton::clicked, [&] { ++pressed; });
    QTest::keyClick(&type, Qt::Key_Return);
    desk.settle();
    EXPECT_EQ(pressed, 0);
    EXPECT_THAT(desk.fields(), StartsWith("Pulse|The Pulse|COMBOBOX-RESTRICTED|"));
    layout->removeWidget(&desk.panel);
    desk.panel.setParent(nullptr);
}

TEST(Customizing, WhatIsWrittenForAFieldThatIsGoneIsNotStoredElsewhereUnasked) {
    for (const bool opensNip : {true, false}) {
        CustomizingDesk desk(opensNip);
        desk.chooseListed(1);
        desk.type(desk.caption(), "How they feel");
        desk.db->failOn = "DBFields";
        desk.saveField();
        desk.db->failOn.clear();
        cNIP other;
        ASSERT_TRUE(other.LoadStructure(desk.db) && other.DeleteGroup(1));
        desk.user->clear();
        desk.saveField();
        EXPECT_EQ(desk.user->boxes.size(), 1U);
        EXPECT_EQ(desk.heading(), "New field in group [History]");
        EXPECT_EQ(desk.listed(), "Smoker");
        ASSERT_TRUE(other.LoadStructure(desk.db) && other.DeleteGroup(1));
        desk.saveField();
        EXPECT_THAT(desk.lastBox().text, HasSubstr("There is no group left"));
        EXPECT_THAT(desk.errorLog(), HasSubstr("[Mood] How they feel, LIST 50: Good|Poor"));
    }
}

TEST(Customizing, MakesTheGroupThatIsAskedForOnAFormThatChanged) {
    CustomizingDesk desk;
    cNIP other;
    ASSERT_TRUE(other.LoadStructure(desk.db) && other.DeleteField(1, 1));
    desk.user->texts = {"Labs"};
    desk.tool("ID_NewNipGroup");
    EXPECT_THAT(desk.user->boxes, IsEmpty());
    EXPECT_EQ(desk.heading(), "Fields of group [Labs]");
    EXPECT_EQ(desk.tabs().count(), 3);
    desk.chooseTab(0);
    EXPECT_EQ(desk.listed(), "Mood");
}

TEST(Customizing, WhatIsNotWrittenInThePaneIsAsTheOtherDeskMadeIt) {
    CustomizingDesk desk;
    desk.chooseListed(1);
    desk.type(desk.width(), "60");
    cNIP other;
    ASSERT_TRUE(other.LoadStructure(desk.db));
    ASSERT_TRUE(other.EditField(1, 2,
                                {.fieldName = "Feeling",
                                 .caption = "The Mood",
                                 .maxLength = 50,
                                 .displayType = "COMBOBOX",
                                 .initialValueRule = 1,
                                 .values = {"Good", "Fair", "Poor"},
                                 .defaultValue = "Fair",
                                 .rowIndex = 1}) &&
                other.SaveStructure());
    desk.saveField();
    EXPECT_THAT(desk.lastBox().text, HasSubstr("Another desk has customized this form"));
    EXPECT_EQ(desk.heading(), "Editing field [Feeling] of group [Vitals]");
    EXPECT_EQ(utf8(desk.name().text() + desk.width().text() + desk.row().text()), "Feeling601");
    desk.saveField();
    EXPECT_EQ(desk.user->boxes.size(), 1U);
    EXPECT_EQ(desk.listed(), "Feeling Pulse");
    EXPECT_THAT(desk.fields(), HasSubstr("Feeling|The Mood|COMBOBOX|60"));
    EXPECT_EQ(desk.rows("Select FieldValue,DefaultValue From DBFieldValues Order By Ordinal"),
              "Good|False Fair|True Poor|False");
}

TEST(Customizing, ANameOfOnesOwnIsKeptAfterAFailure) {
    CustomizingDesk desk;
    desk.newField();
    desk.type(desk.name(), "BodyWeight");
    desk.db->failOn = "Insert Into DBFields";
    desk.saveField();
    desk.type(desk.caption(), "Weight");
    EXPECT_EQ(desk.name().text(), "BodyWeight");
}

TEST(Customizing, AStructureThatCannotBeReadAgainIsReadBeforeItIsNeeded) {
    for (const bool savesField : {true, false}) {
        CustomizingDesk desk;
        desk.click("cmdBackToNip");
        desk.type(desk.pulse(), "99");
        desk.click("cmdNipButton(2)");
        desk.newField();
        desk.type(desk.caption(), "Weight");
        desk.db->failOn = "DBFields";
        desk.saveField();
        EXPECT_THAT(desk.lastBox().text, HasSubstr("could not be read from the database again"));
        EXPECT_EQ(utf8(desk.pulse().text() + desk.caption().text()), "99Weight");
        desk.db->failOn.clear();
        desk.user->clear();
        if (savesField) desk.saveField();
        desk.panel.SaveNipInfo();
        EXPECT_THAT(desk.user->boxes, IsEmpty());
        EXPECT_EQ(desk.rows("Select Pulse From NIP_Custom1"), "99");
        EXPECT_EQ(desk.caption().text(), savesField ? "" : "Weight");
        EXPECT_EQ(desk.listed(), savesField ? "Pulse Mood Weight" : "Pulse Mood");
    }
}

TEST(Customizing, SavingTheNipOnAFormThatChangedKeepsWhatIsWrittenInThePane) {
    CustomizingDesk desk;
    desk.chooseListed(1);
    desk.type(desk.caption(), "How they feel");
    cNIP other;
    ASSERT_TRUE(other.LoadStructure(desk.db));
    ASSERT_TRUE(other.DeleteField(1, 1));
    desk.panel.SaveNipInfo();
    EXPECT_THAT(desk.lastBox().text, HasSubstr("another desk has customized the form"));
    EXPECT_EQ(desk.heading(), "Editing field [Mood] of group [Vitals]");
    EXPECT_EQ(desk.caption().text(), "How they feel");
    EXPECT_EQ(desk.listed(), "Mood");
}

TEST(Customizing, WorksWithoutAnOpenNip) {
    CustomizingDesk desk(false);
    desk.panel.CustomizeOnly(true);
    desk.chooseTab(1);
    desk.clickInForm("txtNip(1)");
    EXPECT_EQ(desk.heading(), "Editing field [Smoker] of group [History]");
    desk.type(desk.caption(), "Smokes?");
    desk.saveField();
    EXPECT_THAT(desk.fields(), HasSubstr("Smoker|Smokes?"));
    EXPECT_TRUE(desk.list().hasFocus());
    EXPECT_EQ(desk.tabs().currentIndex(), 1);
    EXPECT_FALSE(desk.description().isVisible());
    desk.newField();
    desk.user->answers = {Answer::No, Answer::Yes};
    EXPECT_FALSE(desk.panel.requestClose());
    EXPECT_THAT(desk.heard, IsEmpty());
    EXPECT_TRUE(desk.panel.requestClose());
    EXPECT_TRUE(desk.part<QWidget>("paneCustomize").isVisible());
}

TEST(Customizing, ThePanelMayBeDeletedWhileItAsks) {
    const std::function<void(ucNIPPanel&)> tasks[] = {
        [](ucNIPPanel& p) { p.findChild<QAbstractButton*>("cmdNipCustomizeButton(2)")->click(); },
        [](ucNIPPanel& p) { p.findChild<QAction*>("ID_DeleteNipGroup")->trigger(); },
        [](ucNIPPanel& p) { p.findChild<QTabWidget*>("atNips")->setCurrentIndex(1); },
        [](ucNIPPanel& p) { p.LoadNipInfo(7, "P1"); },
        [](ucNIPPanel& p) { p.CustomizeOnly(false); },
    };
    for (const auto& task : tasks) {
        CustomizingDesk desk;
        const QPointer<ucNIPPanel> panel = new ucNIPPanel;
        panel->Initialize(desk.db);
        panel->CustomizeOnly(true);
        panel->CustomizeNip();
        panel->findChild<QAbstractButton*>("cmdNipCustomizeButton(0)")->click();
        desk.user->answers = {Answer::Yes};
        desk.user->whenShown = [&] { delete panel.data(); };
        task(*panel);
        desk.settle();
        EXPECT_EQ(desk.user->boxes.size(), 1U);
        EXPECT_TRUE(panel.isNull());
    }
}

TEST(Customizing, NothingElseIsDoneWhileItAsks) {
    CustomizingDesk desk;
    desk.newField();
    desk.user->whenShown = [&] {
        EXPECT_FALSE(desk.panel.LoadNipInfo(7, "P1"));
        EXPECT_FALSE(desk.panel.requestClose());
        desk.panel.CustomizeNip();
        desk.newField();
        desk.saveField();
        desk.tool("ID_DeleteNipGroup");
    };
    desk.cancelField();
    EXPECT_EQ(desk.user->boxes.size(), 1U);
    EXPECT_EQ(desk.heading(), "New field in group [Vitals]");
}

} // namespace Korvane
