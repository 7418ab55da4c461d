#include "support/PanelDesk.h"

#include <QAction>
#include <QApplication>
#include <QPointer>

#include <gmock/gmock.h>

namespace Korvane {

using namespace Testing;
using testing::IsEmpty;

namespace {

/// What a host's timer may do while a box is open.
void callEverything(PanelDesk& desk) {
    EXPECT_FALSE(desk.panel.CreateNip("P2"));
    EXPECT_FALSE(desk.panel.LoadNipInfo(9, "P2"));
    EXPECT_FALSE(desk.panel.requestClose());
    desk.panel.Initialize(desk.db);
    desk.panel.SaveNipInfo();
    QTest::keyClick(&desk.description(), Qt::Key_S, Qt::ControlModifier);
}

/// A panel that its host deletes sooner or later.
struct DoomedPanel {
    PanelDesk desk;
    QPointer<ucNIPPanel> panel = new ucNIPPanel;

    DoomedPanel() {
        panel->Initialize(desk.db);
        panel->LoadNipInfo(7, "P1");
        panel->resize(900, 500);
        panel->show();
        PanelDesk::type(*panel->findChild<QLineEdit*>("txtEncounterInfo"), "Edited");
        QCoreApplication::processEvents(); // the change has been told
    }
    ~DoomedPanel() { delete panel; }
    void click(const char* button) {
        QCoreApplication::processEvents(); // what was just shown has its place then
        QTest::mouseClick(panel->findChild<QAbstractButton*>(button), Qt::LeftButton);
    }
    void save() { click("cmdNipButton(0)"); }
};

} // namespace

TEST(PanelTask, NothingElseIsDoneWhileABoxIsOpen) {
    PanelDesk desk;
    desk.encounter(9, "P2", "2/2/2026");
    desk.panel.LoadNipInfo(7, "P1");
    desk.type(desk.pulse(), "5");
    int shown = 0;
    desk.user->whenShown = [&] {
        ++shown;
        EXPECT_TRUE(desk.panel.updatesEnabled());
        EXPECT_EQ(desk.db->transactionLevel(), 0);
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        callEverything(desk);
    };
    desk.cancel();
    EXPECT_EQ(shown, 1) << "the question, answered No";
    desk.db->failOn = "Update NIP_Custom1";
    desk.save();
    EXPECT_EQ(shown, 3) << "the failure and what it means";
    desk.user->whenShown = nullptr;
    EXPECT_EQ(desk.state(), "Saved Nip with changes that are not saved");
    EXPECT_EQ(desk.panel.PatientID() + desk.pulse().text(), "P15");

    desk.db->failOn.clear();
    desk.save();
    EXPECT_EQ(desk.rows("Select EncounterID,Pulse From NIP_Custom1"), "7|5");
}

TEST(PanelTask, BoxesOfALoadShowNothingOfTheNipBefore) {
    PanelDesk desk;
    desk.panel.LoadNipInfo(7, "P1");
    desk.type(desk.pulse(), "99");
    desk.field(2, "NIP_Custom1", "Odd", {.displayType = "SLIDER"});
    int shown = 0;
    desk.user->whenShown = [&] {
        ++shown;
        EXPECT_TRUE(desk.panel.updatesEnabled());
        EXPECT_EQ(desk.pulse().text() + desk.description().text(), "");
        EXPECT_EQ(desk.state(), "No Nip is open");
    };
    desk.panel.Initialize(desk.db);
    EXPECT_EQ(shown, 1);
    desk.db->failOn = "From NIP_Custom1";
    desk.panel.LoadNipInfo(7, "P1");
    EXPECT_GT(shown, 2);
}

TEST(PanelTask, WhatASlotDidStays) {
    const std::function<void(ucNIPPanel&)> create = [](ucNIPPanel& p) { p.CreateNip("P9"); };
    const std::function<void(ucNIPPanel&)> load = [](ucNIPPanel& p) { p.LoadNipInfo(7, "P1"); };
    const std::function<void(ucNIPPanel&)> close = [](ucNIPPanel& p) { p.requestClose(); };
    for (const auto& [slot, state] :
         {std::pair{create, "New Nip"}, std::pair{load, "Saved Nip"}, std::pair{close, "No Nip is open"}}) {
        for (const bool isNew : {false, true}) {
            SCOPED_TRACE(testing::Message() << state << isNew);
            PanelDesk desk;
            const auto act = [&desk, &slot = slot] { slot(desk.panel); };
            QObject::connect(&desk.panel, &ucNIPPanel::CreatedNip, &desk.panel, act);
            QObject::connect(&desk.panel, &ucNIPPanel::RenamedNip, &desk.panel, act);
            if (isNew) {
                desk.enterNewNip();
            } else {
                desk.panel.LoadNipInfo(7, "P1");
                desk.type(desk.description(), "Edited");
            }
            desk.save();
            EXPECT_EQ(desk.state(), state);
            std::vector<std::string> expected{isNew ? "created 8" : "renamed 7 Edited 1/2/2026 3:04:05 PM"};
            if (desk.state() == "No Nip is open") expected.emplace_back("closed");
            EXPECT_EQ(desk.heard, expected);
            EXPECT_THAT(desk.user->boxes, IsEmpty());
        }
    }
}

TEST(PanelTask, ThePanelMayBeDeletedWhileTheUserTypes) {
    DoomedPanel doomed;
    QObject::connect(doomed.panel, &ucNIPPanel::modifiedChanged, [&](bool on) {
        if (on) delete doomed.panel;
    });
    doomed.desk.user->answers = {Answer::Yes};
    doomed.panel->LoadNipInfo(7, "P1");
    QTest::keyClick(doomed.panel->findChild<QLineEdit*>("txtEncounterInfo"), 'x');
    QCoreApplication::processEvents();
    EXPECT_FALSE(doomed.panel);
}

TEST(PanelTask, ThePanelMayBeDeletedInEverySlot) {
    const std::function<void(ucNIPPanel*)> connections[] = {
        [](ucNIPPanel* p) { QObject::connect(p, &ucNIPPanel::RenamedNip, [p] { delete p; }); },
        [](ucNIPPanel* p) { QObject::connect(p, &ucNIPPanel::CloseNipPanel, [p] { delete p; }); },
        [](ucNIPPanel* p) { QObject::connect(p, &ucNIPPanel::modifiedChanged, [p] { delete p; }); },
    };
    for (const auto& connectTo : connections) {
        DoomedPanel doomed;
        connectTo(doomed.panel);
        doomed.save();
        EXPECT_FALSE(doomed.panel);
        EXPECT_EQ(doomed.desk.rows("Select Description From Encounter"), "Edited");
    }
}

TEST(PanelTask, ThePanelMayBeDeletedWhileItsBoxesAreOpen) {
    const std::function<void(DoomedPanel&)> asking[] = {
        [](DoomedPanel& d) { EXPECT_FALSE(d.panel->requestClose()); },
        [](DoomedPanel& d) { EXPECT_FALSE(d.panel->CreateNip("P2")); },
        [](DoomedPanel& d) { EXPECT_FALSE(d.panel->LoadNipInfo(7, "P1")); },
        [](DoomedPanel& d) {
            d.desk.db->failOn = "Update Encounter";
            d.save();
        },
        [](DoomedPanel& d) {
            d.desk.db->failOn = "DBFieldGroups";
            d.panel->Initialize(d.desk.db);
        },
        [](DoomedPanel& d) {
            d.panel->CustomizeNip();
            d.panel->findChild<QAction*>("ID_DeleteNipGroup")->trigger();
        },
        [](DoomedPanel& d) {
            d.panel->CustomizeNip();
            d.click("cmdNipCustomizeButton(0)");
            d.click("cmdNipCustomizeButton(2)");
        },
        [](DoomedPanel& d) {
            d.panel->CustomizeNip();
            d.click("cmdNipCustomizeButton(0)");
            PanelDesk::type(*d.panel->findChild<QLineEdit*>("txtCustNip(0)"), "Pulse");
            d.click("cmdNipCustomizeButton(3)");
        },
    };
    for (const auto& ask : asking) {
        DoomedPanel doomed;
        doomed.desk.user->whenShown = [&] { delete doomed.panel; };
        doomed.desk.user->answers = {Answer::Yes};
        ask(doomed);
        EXPECT_FALSE(doomed.panel);
    }
}

} // namespace Korvane
