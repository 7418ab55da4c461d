#include "support/CustomizingDesk.h"

#include <QApplication>

namespace Korvane {

using namespace Testing;
using testing::IsEmpty;

TEST(PanelTask, NothingElseIsDoneWhileABoxIsOpen) {
    PanelDesk desk;
    desk.encounter(9, "P2", "2/2/2026");
    desk.does("Load; pulse=5");
    int shown = 0;
    desk.user->whenShown = [&] {
        ++shown;
        EXPECT_TRUE(desk.panel.updatesEnabled());
        EXPECT_EQ(desk.db->transactionLevel(), 0);
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_FALSE(desk.panel.CreateNip("P2"));
        EXPECT_FALSE(desk.panel.LoadNipInfo(9, "P2"));
        EXPECT_FALSE(desk.panel.requestClose());
        desk.panel.Initialize(desk.db);
        desk.panel.SaveNipInfo();
        QTest::keyClick(&desk.description(), Qt::Key_S, Qt::ControlModifier);
    };
    desk.cancel();
    EXPECT_EQ(shown, 1) << "the question, answered No";
    desk.db->failOn = "Update NIP_Custom1";
    desk.save();
    EXPECT_EQ(shown, 3) << "the failure and what it means";
    desk.user->whenShown = nullptr;
    EXPECT_EQ(desk.shown(), "Saved Nip with changes that are not saved: Visit|5");
    EXPECT_EQ(desk.panel.PatientID(), "P1");
    desk.db->failOn.clear();
    desk.save();
    EXPECT_EQ(desk.stored(), "7|P1|Visit 9|P2|Visit, 7|5");
}

TEST(PanelTask, BoxesOfALoadShowNothingOfTheNipBefore) {
    PanelDesk desk;
    desk.does("Load; pulse=99");
    desk.field(2, "NIP_Custom1", "Odd", {.displayType = "SLIDER"});
    int shown = 0;
    desk.user->whenShown = [&] {
        ++shown;
        EXPECT_TRUE(desk.panel.updatesEnabled());
        EXPECT_EQ(desk.shown(), "No Nip is open: |");
    };
    desk.panel.Initialize(desk.db);
    EXPECT_EQ(shown, 1);
    desk.db->failOn = "From NIP_Custom1";
    desk.load();
    EXPECT_GT(shown, 2);
}

TEST(PanelTask, WhatASlotDidStays) {
    using Slot = std::function<void(ucNIPPanel&)>;
    const Slot create = [](ucNIPPanel& p) { p.CreateNip("P9"); };
    const Slot load = [](ucNIPPanel& p) { p.LoadNipInfo(7, "P1"); };
    const Slot close = [](ucNIPPanel& p) { p.requestClose(); };
    const auto once = Qt::SingleShotConnection;
    for (const auto& [slot, state] :
         {std::pair{create, "New Nip"}, {load, "Saved Nip"}, {close, "No Nip is open"}}) {
        for (const bool isNew : {false, true}) {
            SCOPED_TRACE(testing::Message() << state << isNew);
            PanelDesk desk;
            const auto act = [&desk, &slot = slot] { slot(desk.panel); };
            QObject::connect(&desk.panel, &ucNIPPanel::CreatedNip, &desk.panel, act);
            QObject::connect(&desk.panel, &ucNIPPanel::RenamedNip, &desk.panel, act);
            isNew ? desk.enterNewNip() : desk.does("Load; description=Edited");
            desk.save();
            EXPECT_EQ(desk.state(), state);
            std::vector<std::string> expected{isNew ? "created 8" : "renamed 7 Edited 1/2/2026 3:04:05 PM"};
            if (desk.state() == "No Nip is open") expected.emplace_back("closed");
            EXPECT_EQ(desk.heard, expected);

            desk.user->answers = {Answer::Yes};
            desk.load();
            QObject::connect(&desk.panel, &ucNIPPanel::CloseNipPanel, &desk.panel, act, once);
            desk.does("pulse=88; Save");
            EXPECT_EQ(desk.state(), state);
            EXPECT_TRUE(desk.pulse().isEnabled() || desk.state() == "No Nip is open");
            EXPECT_THAT(desk.told(), IsEmpty());
        }
    }
}

TEST(PanelTask, ThePanelMayBeDeletedInEverySlot) {
    const auto deleteAt = [](auto signal) {
        return [=](ucNIPPanel* p) { QObject::connect(p, signal, [p] { delete p; }); };
    };
    const std::pair<std::function<void(ucNIPPanel*)>, const char*> cases[] = {
        {deleteAt(&ucNIPPanel::RenamedNip), "Edited"},
        {deleteAt(&ucNIPPanel::CloseNipPanel), "Edited"},
        {deleteAt(&ucNIPPanel::modifiedChanged), "Visit"}, // while the user types
    };
    for (const auto& [connectTo, description] : cases) {
        PanelDesk desk;
        desk.load();
        connectTo(desk.owned);
        desk.type(desk.description(), "Edited");
        desk.settle();
        if (desk.owned) desk.save();
        EXPECT_FALSE(desk.owned);
        EXPECT_EQ(desk.rows("Select Description From Encounter"), description);
    }
}

TEST(PanelTask, ThePanelMayBeDeletedWhileItsBoxesAreOpen) {
    const std::function<void(CustomizingDesk&)> asking[] = {
        [](auto& d) { EXPECT_FALSE(d.panel.requestClose()); },
        [](auto& d) { EXPECT_FALSE(d.panel.CreateNip("P2")); },
        [](auto& d) { EXPECT_FALSE(d.load()); },
        [](auto& d) {
            d.db->failOn = "Update Encounter";
            d.save();
        },
        [](auto& d) {
            d.db->failOn = "DBFieldGroups";
            d.panel.Initialize(d.db);
        },
        [](auto& d) { d.does("Customize; ID_DeleteNipGroup"); },
        [](auto& d) { d.does("Customize; New field; name=Pulse; Save field"); },
        [](auto& d) { d.does("Customize; New field; Cancel field"); },
        [](auto& d) { d.does("Customize; New field; ID_DeleteNipGroup"); },
        [](auto& d) { d.does("Customize; New field; tab 1"); },
        [](auto& d) { d.does("Customize; New field"), d.panel.CustomizeOnly(true), d.panel.CustomizeNip(); },
        [](auto& d) {
            d.panel.CustomizeOnly(true);
            d.does("New field");
            d.panel.CustomizeOnly(false);
        },
    };
    for (const auto& ask : asking) {
        SCOPED_TRACE(&ask - asking);
        CustomizingDesk desk;
        desk.does("Back; description=Edited");
        desk.user->whenShown = [&] { delete desk.owned; };
        desk.user->answers = {Answer::Yes};
        ask(desk);
        EXPECT_TRUE(desk.told().size() == 1 || !desk.db->failOn.empty());
        EXPECT_FALSE(desk.owned);
    }
}

} // namespace Korvane
