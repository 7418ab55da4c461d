#include "support/PanelDesk.h"

namespace Korvane {

using namespace Testing;
using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const auto* const tryAgain = " Everything you entered is still here; please try again.";

} // namespace

TEST(SavingANip, StoresItAndTellsTheHostOnceWhetherItIsNewOrRenamed) {
    PanelDesk desk;
    desk.enterNewNip();
    desk.save();
    EXPECT_THAT(desk.heard, ElementsAre("created 8", "closed"));
    EXPECT_EQ(desk.stored(), "7|P1|Visit 8|P2|First visit, 7|72 8|80");
    EXPECT_EQ(desk.rows("Select ProviderID,EncounterDate From Encounter Where EncounterID=8"),
              "1|11/15/2026 5:21:51 PM");
    desk.heard.clear();
    ASSERT_TRUE(desk.panel.LoadNipInfo(8, "P2"));
    desk.does("pulse=81");
    desk.panel.SaveNipInfo();
    EXPECT_THAT(desk.heard, IsEmpty()) << "neither new nor renamed";
    EXPECT_FALSE(desk.panel.isModified());
    desk.does("description=Second visit; Save; Load");
    EXPECT_THAT(desk.heard, ElementsAre("renamed 8 Second visit 11/15/2026 5:21:51 PM", "closed"));
    EXPECT_EQ(desk.stored(), "7|P1|Visit 8|P2|Second visit, 7|72 8|81");
    desk.heard.clear();
    desk.date().setSelectedSection(QDateTimeEdit::DaySection);
    QTest::keyClick(&desk.date(), Qt::Key_Up);
    desk.save();
    EXPECT_THAT(desk.heard, ElementsAre("renamed 7 Visit 1/3/2026 3:04:05 PM", "closed"));
    EXPECT_EQ(desk.rows("Select EncounterDate From Encounter Where EncounterID=7"), "1/3/2026 3:04:05 PM");
}

TEST(SavingANip, TheHostsOwnSaveLeavesTheEncounterPaneUnlessTheNipIsNew) {
    PanelDesk desk;
    desk.does("Load; description=Edited; pulse=71");
    desk.panel.SaveNipInfo();
    EXPECT_TRUE(desk.panel.isModified()) << "the encounter pane is not saved by it";
    EXPECT_EQ(desk.stored(), "7|P1|Visit, 7|71");
    desk.user->answers = {Answer::Yes};
    desk.enterNewNip();
    desk.panel.SaveNipInfo();
    EXPECT_THAT(desk.heard, ElementsAre("created 8"));
    EXPECT_EQ(desk.shown(), "Saved Nip: First visit|80");
    EXPECT_EQ(desk.stored(), "7|P1|Visit 8|P2|First visit, 7|71 8|80");
    desk.does("pulse=81");
    desk.save();
    QTest::mouseDClick(&desk.part<QAbstractButton>("cmdNipButton(0)"), Qt::LeftButton);
    EXPECT_THAT(desk.heard, ElementsAre("created 8", "closed")) << "created only once";
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
    desk.does("pulse=60; Save");
    EXPECT_THAT(desk.heard, ElementsAre("closed"));
    EXPECT_EQ(stored(), before);
}

TEST(SavingANip, OneThatFailsKeepsEverythingAndIsToldOnlyOnceItIsStored) {
    const struct {
        bool isNew;
        const char* failsOn;
        const char* says = "This Nip could not be saved.";
        RuntimeError failure{RuntimeError::DatabaseFailure, "disk I/O error"};
    } cases[] = {{true, "Insert Into NIP_Custom1"},
                 {true, "Insert into Encounter"},
                 {true, "Insert into Encounter",
                  "This Nip could not be saved, because another desk took its number at the same moment.",
                  RuntimeError(RuntimeError::DuplicateKey)},
                 {false, "Update NIP_Custom1"},
                 {false, "Update Encounter"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.failsOn);
        PanelDesk desk;
        desk.user->whenShown = [&] {
            EXPECT_EQ(desk.db->transactionLevel(), 0) << "others wait for the user";
        };
        c.isNew ? desk.enterNewNip() : desk.does("Load; description=Renamed");
        const std::string shown = desk.shown();
        desk.db->failOn = c.failsOn;
        desk.db->failure = c.failure;
        desk.save();
        EXPECT_THAT(desk.heard, IsEmpty());
        EXPECT_THAT(desk.told().back(),
                    AllOf(says(std::string(c.says) + tryAgain), Field(&ShownBox::style, 48)));
        EXPECT_TRUE(desk.panel.isModified());
        EXPECT_EQ(desk.shown(), shown);
        EXPECT_EQ(desk.stored(), "7|P1|Visit, 7|72") << "nothing is left half-saved";
        desk.db->failOn.clear();
        if (c.isNew) desk.encounter(8, "P5", "1/1/2026"); // somebody else takes the number meanwhile
        desk.save();
        EXPECT_THAT(desk.heard,
                    ElementsAre(c.isNew ? "created 9" : "renamed 7 Renamed 1/2/2026 3:04:05 PM", "closed"));
        EXPECT_EQ(desk.stored(),
                  c.isNew ? "7|P1|Visit 8|P5|Visit 9|P2|First visit, 7|72 9|80" : "7|P1|Renamed, 7|72");
    }
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
            EXPECT_THAT(desk.told().back(), says("it is not known whether this Nip was saved"));
            EXPECT_THAT(desk.heard, IsEmpty());
            EXPECT_TRUE(desk.panel.isModified());
            desk.db->Reset();
            desk.does("pulse=85; description=Seen");
        }
        desk.save();
        EXPECT_THAT(desk.heard, ElementsAre("created 8", "closed"));
        EXPECT_EQ(desk.stored(), "7|P1|Visit 8|P2|Seen, 7|72 8|85");
    }
}

TEST(SavingANip, AnEncounterThatIsGoneIsNotSavedAndSaidSo) {
    const std::function<void(PanelDesk&)> saves[] = {[](PanelDesk& desk) { desk.save(); },
                                                     [](PanelDesk& desk) { desk.panel.SaveNipInfo(); }};
    for (const auto& save : saves) {
        PanelDesk desk;
        desk.does("Load; pulse=99");
        desk.db->quietly("Delete From Encounter");
        desk.db->quietly("Delete From NIP_Custom1");
        save(desk);
        EXPECT_THAT(desk.told(),
                    ElementsAre(ShownBox{"This Nip could not be saved, because its encounter is no longer "
                                         "there. It may have been deleted at another desk. Everything you "
                                         "entered is still here.",
                                         MsgBoxStyle::Exclamation, ""}));
        EXPECT_THAT(desk.heard, IsEmpty());
        EXPECT_EQ(desk.stored(), ", ") << "no values of no encounter";
        EXPECT_EQ(desk.pulse().text(), "99");
        desk.encounter(7, "P3", "1/1/2026"); // the next desk gets its number
        save(desk);
        EXPECT_EQ(desk.told().size(), 1u);
        EXPECT_EQ(desk.stored(), "7|P3|Visit, ") << "nor of another patient";
    }
}

TEST(SavingANip, WithoutAProviderTheUserIsAskedForOne) {
    PanelDesk desk;
    desk.panel.CreateNip("P2");
    desk.panel.activateWindow();
    desk.save();
    EXPECT_THAT(desk.told(), ElementsAre(says("Please choose the provider of this encounter.")));
    EXPECT_EQ(desk.panel.focusWidget(), &desk.providers());
    EXPECT_EQ(desk.stored(), "7|P1|Visit, 7|72");
    QTest::keyClick(&desk.providers(), Qt::Key_Down);
    desk.save();
    EXPECT_THAT(desk.heard, ElementsAre("created 8", "closed"));
    desk.db->quietly("Delete From Provider");
    desk.panel.CreateNip("P2");
    desk.save();
    EXPECT_THAT(desk.told(), ElementsAre(says("This clinic has no providers yet.")));
}

TEST(SavingANip, AnIdentifierAbove32767OverflowsAtTheEventWithTheDataSaved) {
    PanelDesk desk;
    desk.encounter(32767, "P1", "1/1/2026");
    desk.enterNewNip();
    desk.save();
    EXPECT_EQ(desk.stored(), "7|P1|Visit 32767|P1|Visit 32768|P2|First visit, 7|72 32768|80");
    EXPECT_THAT(desk.errorLog(), HasSubstr(" Error in ucNipPanel.SaveNipInfo: 6:Overflow on line 0\n"));
    EXPECT_THAT(desk.heard, ElementsAre("closed"));
}

} // namespace Korvane
