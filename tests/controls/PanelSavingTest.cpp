#include "support/PanelDesk.h"

#include <gmock/gmock.h>

#include <chrono>

namespace Korvane {

using namespace Testing;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

// Why is told behind it when nothing else has.
const auto notSaved = AllOf(
    Field(&ShownBox::text, StartsWith("This Nip could not be saved. Everything you entered is still here; "
                                      "please try again.")),
    Field(&ShownBox::style, MsgBoxStyle::Exclamation));

/// A way in which the database refuses a save, and how it comes round.
struct Hindrance {
    const char* name;
    std::function<void(PanelDesk&)> begin;
    std::function<void(PanelDesk&)> end;
};

Hindrance trigger(const char* name, const std::string& when) {
    return {name,
            [when](PanelDesk& desk) {
                const std::string trigger = "Create Trigger refuse Before " + when;
                if (!ScratchDatabase::onServer()) {
                    desk.db->quietly(trigger + " Begin Select Raise(Abort, 'refused'); End");
                    return;
                }
                desk.db->quietly("Create Function refuse() Returns Trigger Language plpgsql "
                                 "As 'Begin Raise Exception ''refused''; End'");
                desk.db->quietly(trigger + " For Each Row Execute Function refuse()");
            },
            [](PanelDesk& desk) {
                desk.db->quietly(ScratchDatabase::onServer() ? "Drop Function refuse Cascade"
                                                             : "Drop Trigger refuse");
            }};
}

Hindrance lock() {
    auto other = std::make_shared<std::shared_ptr<ado::Connection>>();
    return {"another writer holds what is to be written",
            [other](PanelDesk& desk) {
                ScratchDatabase::waitBriefly(*desk.db->real());
                *other = ado::open(desk.address());
                (*other)->BeginTrans();
                if (ScratchDatabase::onServer())
                    (*other)->Execute("Lock Table Encounter, NIP_Custom1 In Exclusive Mode");
            },
            [other](PanelDesk&) { (*other)->RollbackTrans(); }};
}

} // namespace

TEST(SavingANip, ANewOneIsStoredAndToldOnce) {
    PanelDesk desk;
    desk.enterNewNip();
    desk.save();
    EXPECT_THAT(desk.heard, ElementsAre("created 8", "closed"));
    EXPECT_THAT(desk.user->boxes, IsEmpty());
    EXPECT_EQ(
        desk.rows("Select PatientID,ProviderID,EncounterDate,Description From Encounter Where EncounterID=8"),
        "P2|1|11/15/2026 5:21:51 PM|First visit");
    EXPECT_EQ(desk.rows("Select EncounterID,Pulse From NIP_Custom1 Order By EncounterID"), "7|72 8|80");

    desk.heard.clear();
    ASSERT_TRUE(desk.panel.LoadNipInfo(8, "P2"));
    desk.type(desk.pulse(), "81");
    desk.panel.SaveNipInfo();
    EXPECT_THAT(desk.heard, IsEmpty()) << "neither new nor renamed";
    EXPECT_FALSE(desk.panel.isModified());
    desk.type(desk.description(), "Second visit");
    desk.save();
    EXPECT_THAT(desk.heard, ElementsAre("renamed 8 Second visit 11/15/2026 5:21:51 PM", "closed"));
    EXPECT_EQ(desk.rows("Select Pulse,Description From Encounter INNER JOIN NIP_Custom1 ON "
                        "Encounter.EncounterID=NIP_Custom1.EncounterID Where Encounter.EncounterID=8"),
              "81|Second visit");
}

TEST(SavingANip, TheHostsOwnSaveLeavesTheEncounterPaneUnlessTheNipIsNew) {
    PanelDesk desk;
    desk.panel.LoadNipInfo(7, "P1");
    desk.type(desk.description(), "Edited");
    desk.type(desk.pulse(), "71");
    desk.panel.SaveNipInfo();
    EXPECT_TRUE(desk.panel.isModified()) << "the encounter pane is not saved by it";
    EXPECT_EQ(desk.rows("Select Description From Encounter") + desk.rows("Select Pulse From NIP_Custom1"),
              "Visit71");

    desk.user->answers = {Answer::Yes};
    desk.enterNewNip();
    desk.panel.SaveNipInfo();
    EXPECT_THAT(desk.heard, ElementsAre("created 8"));
    EXPECT_EQ(desk.state(), "Saved Nip");
    EXPECT_EQ(desk.rows("Select PatientID,Description From Encounter Where EncounterID=8"), "P2|First visit");
    EXPECT_EQ(desk.rows("Select Pulse From NIP_Custom1 Where EncounterID=8"), "80");
    desk.type(desk.pulse(), "81");
    desk.save();
    EXPECT_THAT(desk.heard, ElementsAre("created 8", "closed")) << "created only once";
}

TEST(SavingANip, ADateThatIsEditedIsARenameAndKeepsItsSecondsOtherwise) {
    PanelDesk desk;
    desk.panel.LoadNipInfo(7, "P1");
    desk.date().setSelectedSection(QDateTimeEdit::DaySection);
    QTest::keyClick(&desk.date(), Qt::Key_Up);
    desk.save();
    EXPECT_THAT(desk.heard, ElementsAre("renamed 7 Visit 1/3/2026 3:04:05 PM", "closed"));
    EXPECT_EQ(desk.rows("Select EncounterDate From Encounter"), "1/3/2026 3:04:05 PM");
}

TEST(SavingANip, WhatWasNotTouchedGoesBackAsItWas) {
    PanelDesk desk;
    const std::string described = "two\nlines, it's\ttabbed " + std::string(3000, 'x');
    desk.insert("Encounter", {{"EncounterID", 20},
                              {"EncounterMethodID", 3},
                              {"PatientID", "P1"},
                              {"ProviderID", 99},
                              {"ForeignProviderID", 5},
                              {"LocationID", 6},
                              {"EncounterDate", "3/29/2026 2:30:59 AM"},
                              {"Outgoing", false},
                              {"Description", described},
                              {"Transport", 4}});
    const auto stored = [&] { return desk.rows("Select * From Encounter Where EncounterID=20"); };
    const std::string before = stored();
    ASSERT_THAT(before, HasSubstr(described));
    ASSERT_TRUE(desk.panel.LoadNipInfo(20, "P1"));
    EXPECT_EQ(desk.providers().currentIndex(), -1) << "a provider that is not in the table";
    desk.type(desk.pulse(), "60");
    desk.save();
    EXPECT_THAT(desk.heard, ElementsAre("closed"));
    EXPECT_EQ(stored(), before);
}

TEST(SavingANip, AFailedFirstSaveKeepsEverythingAndTheNextInsertsAnew) {
    for (const Hindrance& c : {trigger("values refused", "Insert On NIP_Custom1"),
                               trigger("encounter refused", "Insert On Encounter"), lock()}) {
        SCOPED_TRACE(c.name);
        PanelDesk desk;
        desk.user->whenShown = [&] {
            EXPECT_EQ(desk.db->transactionLevel(), 0) << "others wait for the user";
        };
        desk.enterNewNip();
        c.begin(desk);
        desk.save();
        EXPECT_THAT(desk.heard, IsEmpty());
        EXPECT_THAT(desk.user->boxes.back(), notSaved);
        EXPECT_TRUE(desk.panel.isModified());
        EXPECT_EQ(desk.pulse().text() + desk.description().text(), "80First visit");
        EXPECT_EQ(desk.db->transactionLevel(), 0);
        c.end(desk);
        EXPECT_EQ(desk.rows("Select EncounterID From Encounter"), "7") << "nothing is left half-saved";

        desk.encounter(8, "P5", "1/1/2026"); // somebody else takes the number meanwhile
        desk.save();
        EXPECT_THAT(desk.heard, ElementsAre("created 9", "closed"));
        EXPECT_EQ(desk.rows("Select EncounterID,PatientID,Description From Encounter Where EncounterID>7"),
                  "8|P5|Visit 9|P2|First visit");
        EXPECT_EQ(desk.rows("Select EncounterID,Pulse From NIP_Custom1 Where EncounterID>7"), "9|80");
    }
}

TEST(SavingANip, AFailedRenameIsToldOnlyOnceItIsStored) {
    for (const Hindrance& c : {trigger("values refused", "Update On NIP_Custom1"),
                               trigger("encounter refused", "Update On Encounter"), lock()}) {
        SCOPED_TRACE(c.name);
        PanelDesk desk;
        desk.panel.LoadNipInfo(7, "P1");
        desk.type(desk.description(), "Renamed");
        c.begin(desk);
        desk.save();
        EXPECT_THAT(desk.heard, IsEmpty());
        EXPECT_THAT(desk.user->boxes.back(), notSaved);
        EXPECT_EQ(desk.state(), "Saved Nip with changes that are not saved");
        c.end(desk);
        EXPECT_EQ(desk.rows("Select Description From Encounter"), "Visit");
        desk.save();
        EXPECT_THAT(desk.heard, ElementsAre("renamed 7 Renamed 1/2/2026 3:04:05 PM", "closed"));
    }
}

TEST(SavingANip, ANumberThatAnotherDeskHasTakenIsSaidAndTheNextTryFindsOne) {
    PanelDesk desk;
    desk.enterNewNip();
    desk.db->failOn = "Insert into Encounter";
    desk.db->failure = RuntimeError(RuntimeError::DuplicateKey);
    desk.save();
    EXPECT_EQ(desk.user->boxes.back(),
              (ShownBox{"This Nip could not be saved, because another desk took its number at the same "
                        "moment. Everything you entered is still here; please try again.",
                        MsgBoxStyle::Exclamation, ""}));
    desk.db->failOn.clear();
    desk.encounter(8, "P2", "1/1/2026");
    desk.save();
    EXPECT_THAT(desk.heard, ElementsAre("created 9", "closed"));
    EXPECT_EQ(desk.rows("Select EncounterID,Pulse From NIP_Custom1 Where EncounterID>7"), "9|80");
}

TEST(SavingANip, ACommitWithoutAnAnswerStoresNothingTwice) {
    for (const bool carriedOut : {true, false}) {
        SCOPED_TRACE(carriedOut);
        PanelDesk desk;
        desk.enterNewNip();
        for (int lost = 0; lost < 2; ++lost) {
            desk.db->loseAnswerOf = "Commit";
            desk.db->carriedOut = carriedOut;
            desk.save();
            EXPECT_THAT(desk.user->boxes.back().text,
                        HasSubstr("it is not known whether this Nip was saved"));
            EXPECT_THAT(desk.heard, IsEmpty());
            EXPECT_TRUE(desk.panel.isModified());
            desk.db->Reset();
            desk.type(desk.pulse(), "85");
            desk.type(desk.description(), "Seen");
        }
        desk.save();
        EXPECT_THAT(desk.heard, ElementsAre("created 8", "closed"));
        EXPECT_EQ(desk.rows("Select EncounterID,PatientID,Description From Encounter Where EncounterID>7"),
                  "8|P2|Seen");
        EXPECT_EQ(desk.rows("Select EncounterID,Pulse From NIP_Custom1 Where EncounterID>7"), "8|85");
    }
}

TEST(SavingANip, AServerThatGoesAwayAtTheCommitCanBeReachedAndSavedToAgain) {
    if (!ScratchDatabase::onServer()) GTEST_SKIP() << "a file has no line to lose";
    PanelDesk desk;
    desk.db->quietly("Create Function leave() Returns Trigger Language plpgsql "
                     "As 'Begin Perform pg_terminate_backend(pg_backend_pid()); Return Null; End'");
    desk.db->quietly(
        "Create Constraint Trigger leave After Insert On Encounter Deferrable Initially Deferred "
        "For Each Row Execute Function leave()");
    desk.enterNewNip();
    desk.save();
    EXPECT_EQ(desk.db->State(), 0);
    EXPECT_THAT(desk.user->boxes.back().text, HasSubstr("it is not known whether this Nip was saved"));
    EXPECT_THAT(desk.heard, IsEmpty());
    desk.db->Reset();
    desk.db->quietly("Drop Function leave Cascade");
    EXPECT_EQ(desk.rows("Select EncounterID From Encounter"), "7");
    desk.save();
    EXPECT_THAT(desk.heard, ElementsAre("created 8", "closed"));
    EXPECT_EQ(desk.rows("Select EncounterID,Pulse From NIP_Custom1 Where EncounterID>7"), "8|80");
}

TEST(SavingANip, AnEncounterThatIsGoneIsNotSavedAndSaidSo) {
    const std::function<void(PanelDesk&)> saves[] = {[](PanelDesk& desk) { desk.save(); },
                                                     [](PanelDesk& desk) { desk.panel.SaveNipInfo(); }};
    for (const auto& save : saves) {
        PanelDesk desk;
        desk.panel.LoadNipInfo(7, "P1");
        desk.type(desk.pulse(), "99");
        desk.db->quietly("Delete From Encounter");
        desk.db->quietly("Delete From NIP_Custom1");
        save(desk);
        EXPECT_THAT(desk.user->boxes,
                    ElementsAre(ShownBox{"This Nip could not be saved, because its encounter is no longer "
                                         "there. It may have been deleted at another desk. Everything you "
                                         "entered is still here.",
                                         MsgBoxStyle::Exclamation, ""}));
        EXPECT_THAT(desk.heard, IsEmpty());
        EXPECT_EQ(desk.rows("Select Pulse From NIP_Custom1"), "") << "values of no encounter";
        EXPECT_EQ(desk.pulse().text(), "99");

        desk.encounter(7, "P3", "1/1/2026"); // the next desk gets its number
        save(desk);
        EXPECT_EQ(desk.user->boxes.size(), 2u);
        EXPECT_EQ(desk.rows("Select PatientID From Encounter"), "P3");
        EXPECT_EQ(desk.rows("Select Pulse From NIP_Custom1"), "") << "values of another patient";
    }
}

TEST(SavingANip, WithoutAProviderTheUserIsAskedForOne) {
    PanelDesk desk;
    desk.panel.CreateNip("P2");
    desk.panel.activateWindow();
    desk.save();
    EXPECT_THAT(
        desk.user->boxes,
        ElementsAre(ShownBox{"Please choose the provider of this encounter. It cannot be saved without one.",
                             MsgBoxStyle::Information, ""}));
    EXPECT_EQ(desk.panel.focusWidget(), &desk.providers());
    EXPECT_EQ(desk.rows("Select EncounterID From Encounter"), "7");
    QTest::keyClick(&desk.providers(), Qt::Key_Down);
    desk.save();
    EXPECT_THAT(desk.heard, ElementsAre("created 8", "closed"));

    desk.db->quietly("Delete From Provider");
    desk.panel.CreateNip("P2");
    desk.save();
    EXPECT_EQ(desk.user->boxes.back().text,
              "This clinic has no providers yet. An encounter cannot be saved without one.");
}

TEST(SavingANip, ASecondClickOrAHeldKeySavesNothingMore) {
    PanelDesk desk;
    desk.enterNewNip();
    auto& button = desk.part<QAbstractButton>("cmdNipButton(0)");
    desk.save();
    QTest::mouseDClick(&button, Qt::LeftButton);
    EXPECT_THAT(desk.heard, ElementsAre("created 8", "closed"));

    desk.panel.LoadNipInfo(7, "P1");
    QKeyEvent held(QEvent::KeyPress, Qt::Key_S, Qt::ControlModifier, QString(), true);
    QCoreApplication::sendEvent(&desk.pulse(), &held);
    EXPECT_EQ(desk.state(), "Saved Nip") << "not closed";
    EXPECT_THAT(desk.user->boxes, IsEmpty());
}

TEST(SavingANip, AnIdentifierAbove32767OverflowsAtTheEventWithTheDataSaved) {
    PanelDesk desk;
    desk.encounter(32767, "P1", "1/1/2026");
    desk.enterNewNip();
    desk.save();
    EXPECT_THAT(desk.heard, ElementsAre("closed"));
    EXPECT_EQ(desk.rows("Select Description From Encounter Where EncounterID=32768"), "First visit");
    EXPECT_EQ(desk.rows("Select Pulse From NIP_Custom1 Where EncounterID=32768"), "80");
    EXPECT_THAT(desk.errorLog(), HasSubstr(" Error in ucNipPanel.SaveNipInfo: 6:Overflow on line 0\n"));

    desk.panel.LoadNipInfo(32768, "P2");
    desk.type(desk.description(), "Renamed");
    desk.save();
    EXPECT_THAT(desk.heard, ElementsAre("closed", "closed"));
    EXPECT_EQ(desk.rows("Select Description From Encounter Where EncounterID=32768"), "Renamed");
    EXPECT_THAT(desk.errorLog(), HasSubstr(" Error in ucNipPanel.SaveEncounterInfo: 6:Overflow on line 0\n"));
}

} // namespace Korvane
