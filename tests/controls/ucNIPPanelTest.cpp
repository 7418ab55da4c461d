#include "support/PanelDesk.h"

namespace Korvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(ucNIPPanel, AsksBeforeEntriesAreLostAndKeepsThemOnNo) {
    using Leave = std::function<bool(PanelDesk&)>; // false when it was refused
    const Leave create = [](PanelDesk& desk) { return desk.panel.CreateNip("P3"); };
    const Leave load = [](PanelDesk& desk) { return desk.load(); };
    const Leave close = [](PanelDesk& desk) { return desk.panel.requestClose(); };
    const auto closeBy = [](const char* button) -> Leave {
        return [=](PanelDesk& desk) { return desk.click(button), !desk.heard.empty(); };
    };
    const struct {
        bool ofNewNip;
        const char* question;
        Leave leave;
        const char* shownAfterwards;
    } cases[] = {
        {true, "create a new nip and discard the one you were creating", create, "New Nip: |"},
        {false, "create a new nip and discard the changes you are making", create, "New Nip: |"},
        {true, "load a nip and discard the one you were creating", load, "Saved Nip: Visit|72"},
        {false, "load a nip and discard the changes you are making", load, "Saved Nip: Visit|72"},
        {true, "cancel the creation of this Nip", closeBy("cmdNipButton(1)"), "No Nip is open: |"},
        {false, "cancel the changes made to this Nip", closeBy("cmdCloseNip"), "No Nip is open: |"},
        {false, "cancel the changes made to this Nip", close, "No Nip is open: |"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.question);
        PanelDesk desk;
        c.ofNewNip ? desk.panel.CreateNip("P2") : desk.load();
        EXPECT_FALSE(desk.panel.isModified());
        desk.does("pulse=99");
        const std::string shown = desk.shown();
        desk.user->answers = {Answer::No, Answer::Yes};
        EXPECT_FALSE(c.leave(desk));
        EXPECT_THAT(desk.told(),
                    ElementsAre(ShownBox{std::string("Are you sure you want to ") + c.question + "?",
                                         MsgBoxStyle::YesNo | MsgBoxStyle::Question, ""}));
        EXPECT_EQ(desk.shown(), shown);
        EXPECT_EQ(desk.pulse().text(), "99");
        EXPECT_TRUE(desk.panel.isModified());
        EXPECT_EQ(desk.panel.PatientID(), c.ofNewNip ? "P2" : "P1");
        EXPECT_THAT(desk.heard, IsEmpty());
        EXPECT_TRUE(c.leave(desk));
        EXPECT_EQ(desk.shown(), c.shownAfterwards) << "what was thrown away must not look kept";
        EXPECT_FALSE(desk.panel.isModified());
    }
    PanelDesk unchanged;
    EXPECT_TRUE(unchanged.panel.CreateNip("P2"));
    EXPECT_TRUE(unchanged.panel.CreateNip("P3"));
    EXPECT_TRUE(unchanged.load());
    unchanged.cancel();
    EXPECT_THAT(unchanged.heard, ElementsAre("closed"));
    EXPECT_THAT(unchanged.told(), IsEmpty());
}

TEST(ucNIPPanel, EveryPartOfTheNipMarksItChangedOnce) {
    PanelDesk desk;
    int raised = 0;
    QObject::connect(&desk.panel, &ucNIPPanel::modifiedChanged, &desk.panel, [&](bool on) { raised += on; });
    const std::function<void()> edits[] = {
        [&] { desk.does("description=a text"); },
        [&] { QTest::keyClick(&desk.date(), Qt::Key_Up); },
        [&] { QTest::keyClick(&desk.providers(), Qt::Key_Down); },
        [&] { desk.does("pulse=120"); },
    };
    for (const auto& edit : edits) {
        raised = 0;
        desk.user->answers = {Answer::Yes};
        ASSERT_TRUE(desk.load());
        EXPECT_FALSE(desk.panel.isModified());
        edit();
        EXPECT_TRUE(desk.panel.isModified());
        desk.settle();
        EXPECT_EQ(raised, 1);
    }
}

TEST(ucNIPPanel, BeforeInitializeNothingIsShownAndNothingSaid) {
    const RecordedInteraction user;
    ucNIPPanel panel;
    EXPECT_FALSE(panel.CreateNip("P1"));
    EXPECT_FALSE(panel.LoadNipInfo(7, "P1"));
    EXPECT_EQ(panel.PatientID(), "");
    EXPECT_THAT(user->boxes, IsEmpty());
    QTest::mouseClick(panel.findChild<QAbstractButton*>("cmdNipButton(0)"), Qt::LeftButton);
    EXPECT_THAT(user->boxes, ElementsAre(ShownBox{"Unable to save this encounter", MsgBoxStyle::OkOnly, ""}));
}

TEST(ucNIPPanel, ShowsNothingThatIsMissingOrOfAnotherPatientOrOfNobody) {
    const auto* missing = "This Nip could not be found. It may have been deleted.";
    for (const auto& [encounter, patient, text] :
         {std::tuple{7, "P2", "This Nip belongs to another patient and cannot be shown here."},
          {8, "P1", missing},
          {-1, "P1", missing}}) {
        SCOPED_TRACE(text);
        PanelDesk desk;
        ASSERT_TRUE(desk.load());
        EXPECT_FALSE(desk.panel.LoadNipInfo(encounter, patient));
        EXPECT_THAT(desk.told(), ElementsAre(ShownBox{text, MsgBoxStyle::Exclamation, ""}));
        EXPECT_EQ(desk.shown() + utf8(desk.panel.PatientID()), "No Nip is open: |");
        EXPECT_FALSE(desk.description().isEnabled() || desk.pulse().isEnabled());
        desk.save();
        EXPECT_EQ(desk.stored(), "7|P1|Visit, 7|72");
    }
    PanelDesk desk;
    desk.load();
    for (const char* nobody : {"", "  "})
        EXPECT_FALSE(desk.panel.CreateNip(nobody));
    EXPECT_THAT(desk.told(), testing::Each(says("No patient is chosen.")));
    EXPECT_EQ(desk.pulse().text(), "72");
}

TEST(ucNIPPanel, ALoadThatFailsLeavesNothingOfThePatientBeforeAndTheNextReadsAll) {
    const char* structure = "DBFieldGroups";
    for (const char* statement : {"From NIP_Custom1", "from Encounter", "From Provider", structure}) {
        SCOPED_TRACE(statement);
        PanelDesk desk;
        ASSERT_TRUE(desk.load());
        desk.encounter(9, "P2", "2/2/2026");
        desk.db->failOn = statement;
        if (statement == structure) desk.panel.Initialize(desk.db);
        EXPECT_FALSE(desk.panel.LoadNipInfo(9, "P2"));
        EXPECT_EQ(desk.told().back(),
                  (ShownBox{"This Nip could not be read from the database. Please try again.",
                            MsgBoxStyle::Exclamation, ""}));
        EXPECT_EQ(desk.description().text() + desk.panel.PatientID(), "");
        EXPECT_TRUE(statement == structure || desk.pulse().text().isEmpty());
        desk.db->failOn.clear();
        EXPECT_TRUE(desk.load());
        EXPECT_EQ(desk.shown(), "Saved Nip: Visit|72");
    }
}

TEST(ucNIPPanel, ShowsTheButtonsThatItsPropertiesCallFor) {
    PanelDesk desk;
    const auto shown = [&] {
        QStringList parts;
        for (const char* name : {"cmdNipButton(0)", "cmdNipButton(1)", "cmdNipButton(2)", "cmdCloseNip",
                                 "cmdCloseNipCustomize", "paneCustomize"})
            if (!desk.part<QWidget>(name).isHidden()) parts << name;
        return utf8(parts.join(' '));
    };
    EXPECT_EQ(shown(), "cmdNipButton(0) cmdNipButton(1) cmdNipButton(2) cmdCloseNip cmdCloseNipCustomize");
    desk.panel.AllowClosePanel(false);
    EXPECT_EQ(shown(), "cmdNipButton(0) cmdNipButton(2) cmdCloseNipCustomize");
    desk.does("Load; pulse=55");
    desk.panel.CustomizeOnly(true);
    EXPECT_EQ(shown(), "cmdNipButton(0) paneCustomize") << "what was entered can be saved";
    desk.save();
    EXPECT_EQ(desk.stored(), "7|P1|Visit, 7|55");
    desk.panel.AllowClosePanel(true);
    EXPECT_EQ(shown(), "cmdNipButton(1) cmdCloseNip paneCustomize");
}

TEST(ucNIPPanel, TheKeyboardSavesAndCancelsFromEveryControlInTheirOrder) {
    for (const char* part :
         {"txtEncounterInfo", "pvdateEncounter", "pvcEncounterInfo", "txtNip(0)", "atNips"}) {
        SCOPED_TRACE(part);
        PanelDesk desk;
        desk.does("Load; pulse=88");
        QKeyEvent held(QEvent::KeyPress, Qt::Key_S, Qt::ControlModifier, QString(), true);
        QCoreApplication::sendEvent(&desk.part<QWidget>(part), &held);
        EXPECT_THAT(desk.heard, IsEmpty()) << "a key that is held closes nothing";
        QTest::keyClick(&desk.part<QWidget>(part), Qt::Key_S, Qt::ControlModifier);
        EXPECT_THAT(desk.heard, ElementsAre("closed"));
        EXPECT_EQ(desk.stored(), "7|P1|Visit, 7|88");
        for (const bool allowed : {true, false}) {
            desk.heard.clear();
            desk.load();
            desk.panel.AllowClosePanel(allowed);
            QTest::keyClick(&desk.part<QWidget>(part), Qt::Key_Escape);
            EXPECT_EQ(desk.heard.size(), allowed ? 1U : 0U) << "no way out where none is offered";
        }
    }
}

TEST(ucNIPPanel, DoesNothingWhileTheHostDesignsItsForm) {
    PanelDesk desk;
    desk.load();
    EXPECT_THAT(desk.tabOrder(desk.description(), desk.description()),
                ElementsAre("pvdateEncounter", "pvcEncounterInfo", "atNips", "txtNip(0)", "cmdNipButton(0)",
                            "cmdNipButton(1)", "cmdNipButton(2)", "cmdCloseNip"));
    desk.panel.setDesignMode(true);
    for (const char* button : {"cmdNipButton(0)", "cmdNipButton(1)", "cmdNipButton(2)", "cmdCloseNip"})
        desk.click(button);
    EXPECT_THAT(desk.heard, IsEmpty());
    EXPECT_EQ(desk.state(), "Saved Nip");
    EXPECT_FALSE(desk.part<QWidget>("paneCustomize").isVisible());
}

TEST(ucNIPPanel, InitializedAgainItStartsAfreshWithTheNewStructure) {
    PanelDesk desk;
    desk.does("Load; pulse=99");
    desk.field(2, "NIP_Custom1", "Weight");
    desk.panel.Initialize(desk.db);
    EXPECT_EQ(desk.shown() + utf8(desk.panel.PatientID()), "No Nip is open: |");
    EXPECT_TRUE(desk.panel.CreateNip("P2"));
    EXPECT_THAT(desk.told(), IsEmpty());
    EXPECT_TRUE(desk.part<QLineEdit>("txtNip(1)").isVisible());
}

} // namespace Korvane
