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
    const struct {
        std::int32_t encounter;
        const char* patient;
        const char* text;
    } cases[] = {{7, "P2", "This Nip belongs to another patient and cannot be shown here."},
                 {8, "P1", missing},
                 {-1, "P1", missing}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        PanelDesk desk;
        ASSERT_TRUE(desk.load());
        EXPECT_FALSE(desk.panel.LoadNipInfo(c.encounter, c.patient));
        EXPECT_THAT(desk.told(), ElementsAre(ShownBox{c.text, MsgBoxStyle::Exclamation, ""}));
        EXPECT_EQ(desk.shown() + utf8(desk.panel.PatientID()), "No Nip is open: |");
        EXPECT_FALSE(desk.description().isEnabled() || desk.pulse().isEnabled());
        desk.save();
        EXPECT_EQ(desk.stored(), "7|P1|Visit, 7|72");
    }
    PanelDesk desk;
    desk.load();
    for (const char* nobody : {"", "  "}) {
        EXPECT_FALSE(desk.panel.CreateNip(nobody));
        EXPECT_THAT(desk.told(),
                    ElementsAre(says("No patient is chosen. A Nip cannot be created without one.")));
    }
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
    const auto hidden = [&](const char* name) { return desk.part<QWidget>(name).isHidden(); };
    const auto says = [&](const char* button) { return desk.part<QAbstractButton>(button).text(); };
    for (const bool customizeOnly : {false, true}) {
        for (const bool allowClose : {false, true}) {
            SCOPED_TRACE(testing::Message() << customizeOnly << allowClose);
            desk.panel.CustomizeOnly(customizeOnly);
            desk.panel.AllowClosePanel(allowClose);
            EXPECT_EQ(hidden("cmdNipButton(0)"), customizeOnly);
            EXPECT_EQ(hidden("cmdNipButton(1)"), !allowClose);
            EXPECT_EQ(hidden("cmdNipButton(2)"), customizeOnly);
            EXPECT_EQ(hidden("cmdCloseNip"), !allowClose);
            EXPECT_EQ(hidden("cmdCloseNipCustomize"), customizeOnly);
            EXPECT_EQ(hidden("paneCustomize"), !customizeOnly);
            EXPECT_FALSE(hidden("paneContent"));
            EXPECT_EQ(says("cmdNipButton(0)") + says("cmdNipButton(1)") + says("cmdNipButton(2)"),
                      customizeOnly ? "SaveCloseCustomize" : "SaveCancelCustomize");
        }
    }
    PanelDesk changed;
    changed.does("Load; pulse=55");
    changed.panel.CustomizeOnly(true);
    EXPECT_TRUE(changed.part<QWidget>("cmdNipButton(0)").isVisible()) << "what was entered can be saved";
    changed.save();
    EXPECT_EQ(changed.stored(), "7|P1|Visit, 7|55");
    EXPECT_FALSE(changed.part<QWidget>("cmdNipButton(0)").isVisible());
}

TEST(ucNIPPanel, KeepsItsPropertiesInTheHostsBag) {
    ucNIPPanel panel;
    std::vector<QString> changed;
    QObject::connect(&panel, &ucNIPPanel::PropertyChanged, &panel,
                     [&](const QString& name) { changed.push_back(name); });
    panel.CustomizeOnly(true);
    panel.setProperty("AllowClosePanel", false);
    EXPECT_THAT(changed, ElementsAre("CustomizeOnly", "AllowClosePanel"));
    PropertyBag bag;
    panel.WriteProperties(bag);
    ucNIPPanel other;
    other.ReadProperties(bag);
    EXPECT_TRUE(other.CustomizeOnly());
    EXPECT_FALSE(other.property("AllowClosePanel").toBool());
    other.ReadProperties(PropertyBag());
    EXPECT_FALSE(other.CustomizeOnly());
    EXPECT_TRUE(other.AllowClosePanel());
}

TEST(ucNIPPanel, TheKeyboardSavesAndCancelsFromEveryControlInTheirOrder) {
    for (const char* part :
         {"txtEncounterInfo", "pvdateEncounter", "pvcEncounterInfo", "txtNip(0)", "atNips"}) {
        SCOPED_TRACE(part);
        PanelDesk desk;
        desk.does("Load; pulse=88");
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
    PanelDesk desk;
    desk.load();
    EXPECT_THAT(desk.tabOrder(desk.description(), desk.description()),
                ElementsAre("pvdateEncounter", "pvcEncounterInfo", "atNips", "txtNip(0)", "cmdNipButton(0)",
                            "cmdNipButton(1)", "cmdNipButton(2)", "cmdCloseNip"));
    desk.panel.setDesignMode(true);
    for (const char* button : {"cmdNipButton(0)", "cmdNipButton(1)", "cmdNipButton(2)", "cmdCloseNip"})
        desk.click(button);
    EXPECT_THAT(desk.heard, IsEmpty()) << "nothing is done while the host designs its form";
    EXPECT_EQ(desk.state(), "Saved Nip");
    EXPECT_FALSE(desk.part<QWidget>("paneCustomize").isVisible());
}

TEST(ucNIPPanel, InitializedAgainItStartsAfreshWithTheNewStructure) {
    PanelDesk desk;
    desk.does("Load; pulse=99");
    desk.field(2, "NIP_Custom1", "Weight");
    desk.panel.Initialize(desk.db);
    EXPECT_THAT(desk.told(), IsEmpty());
    EXPECT_FALSE(desk.panel.isModified());
    EXPECT_TRUE(desk.panel.CreateNip("P2"));
    EXPECT_EQ(desk.pulse().text(), "");
    EXPECT_TRUE(desk.part<QLineEdit>("txtNip(1)").isVisible());
}

} // namespace Korvane
