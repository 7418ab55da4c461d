#include <korvane/controls/nippanel/ucNIPPanel.h>

#include "support/PanelDesk.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

namespace Korvane {

using namespace Testing;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr int asking = MsgBoxStyle::YesNo | MsgBoxStyle::Question;

/// One way to leave unsaved entries behind, and the question it asks first.
struct Leaving {
    const char* name;
    bool ofNewNip;
    const char* question;
    std::function<bool(PanelDesk&)> leave; ///< false when it was refused
    const char* openAfterwards;
};

bool closedBy(PanelDesk& desk, const char* button) {
    desk.click(button);
    return !desk.heard.empty();
}

const Leaving leavings[] = {
    {"create over a new one", true,
     "Are you sure you want to create a new nip and discard the one you were creating?",
     [](PanelDesk& desk) { return desk.panel.CreateNip("P3"); }, "New Nip"},
    {"create over changes", false,
     "Are you sure you want to create a new nip and discard the changes you are making?",
     [](PanelDesk& desk) { return desk.panel.CreateNip("P3"); }, "New Nip"},
    {"load over a new one", true,
     "Are you sure you want to load a nip and discard the one you were creating?",
     [](PanelDesk& desk) { return desk.panel.LoadNipInfo(7, "P1"); }, "Saved Nip"},
    {"load over changes", false,
     "Are you sure you want to load a nip and discard the changes you are making?",
     [](PanelDesk& desk) { return desk.panel.LoadNipInfo(7, "P1"); }, "Saved Nip"},
    {"cancel a new one", true, "Are you sure you want to cancel the creation of this Nip?",
     [](PanelDesk& desk) { return closedBy(desk, "cmdNipButton(1)"); }, "No Nip is open"},
    {"close over changes", false, "Are you sure you want to cancel the changes made to this Nip?",
     [](PanelDesk& desk) { return closedBy(desk, "cmdCloseNip"); }, "No Nip is open"},
    {"the host's window closes", false, "Are you sure you want to cancel the changes made to this Nip?",
     [](PanelDesk& desk) { return desk.panel.requestClose(); }, "No Nip is open"},
};

} // namespace

TEST(ucNIPPanel, AsksBeforeEntriesAreLostAndKeepsThemOnNo) {
    for (const Leaving& c : leavings) {
        SCOPED_TRACE(c.name);
        PanelDesk desk;
        c.ofNewNip ? desk.panel.CreateNip("P2") : desk.panel.LoadNipInfo(7, "P1");
        EXPECT_FALSE(desk.panel.isModified());
        desk.type(desk.pulse(), "99");
        EXPECT_TRUE(desk.panel.isModified());

        desk.user->answers = {Answer::No};
        EXPECT_FALSE(c.leave(desk));
        EXPECT_THAT(desk.user->boxes, ElementsAre(ShownBox{c.question, asking, ""}));
        EXPECT_EQ(desk.pulse().text(), "99");
        EXPECT_TRUE(desk.panel.isModified());
        EXPECT_EQ(desk.panel.PatientID(), c.ofNewNip ? "P2" : "P1");
        EXPECT_THAT(desk.heard, IsEmpty());

        desk.user->answers = {Answer::Yes};
        EXPECT_TRUE(c.leave(desk));
        EXPECT_EQ(desk.state(), c.openAfterwards);
        EXPECT_NE(desk.pulse().text(), "99") << "what was thrown away must not look kept";
        EXPECT_FALSE(desk.panel.isModified());
    }
}

TEST(ucNIPPanel, AsksNothingWhileNothingChanged) {
    PanelDesk desk;
    EXPECT_TRUE(desk.panel.CreateNip("P2"));
    EXPECT_TRUE(desk.panel.CreateNip("P3"));
    EXPECT_TRUE(desk.panel.LoadNipInfo(7, "P1"));
    desk.cancel();
    EXPECT_THAT(desk.heard, ElementsAre("closed"));
    EXPECT_THAT(desk.user->boxes, IsEmpty());
}

TEST(ucNIPPanel, EveryPartOfTheNipMarksItChangedOnce) {
    PanelDesk desk;
    int raised = 0;
    QObject::connect(&desk.panel, &ucNIPPanel::modifiedChanged, &desk.panel, [&](bool on) { raised += on; });
    const std::function<void()> edits[] = {
        [&] { desk.type(desk.description(), "a text"); },
        [&] { QTest::keyClick(&desk.date(), Qt::Key_Up); },
        [&] { QTest::keyClick(&desk.providers(), Qt::Key_Down); },
        [&] { desk.type(desk.pulse(), "120"); },
    };
    for (const auto& edit : edits) {
        raised = 0;
        desk.user->answers = {Answer::Yes};
        ASSERT_TRUE(desk.panel.LoadNipInfo(7, "P1"));
        EXPECT_FALSE(desk.panel.isModified());
        edit();
        EXPECT_TRUE(desk.panel.isModified());
        QCoreApplication::processEvents();
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

TEST(ucNIPPanel, ShowsNothingThatIsMissingOrOfAnotherPatient) {
    struct Refusal {
        std::int32_t encounter;
        const char* patient;
        const char* text;
    };
    for (const auto& c : {Refusal{7, "P2", "This Nip belongs to another patient and cannot be shown here."},
                          Refusal{8, "P1", "This Nip could not be found. It may have been deleted."},
                          Refusal{-1, "P1", "This Nip could not be found. It may have been deleted."}}) {
        SCOPED_TRACE(c.text);
        PanelDesk desk;
        ASSERT_TRUE(desk.panel.LoadNipInfo(7, "P1"));
        EXPECT_FALSE(desk.panel.LoadNipInfo(c.encounter, c.patient));
        EXPECT_THAT(desk.user->boxes, ElementsAre(ShownBox{c.text, MsgBoxStyle::Exclamation, ""}));
        EXPECT_EQ(desk.description().text() + desk.pulse().text() + desk.panel.PatientID(), "");
        EXPECT_FALSE(desk.description().isEnabled() || desk.pulse().isEnabled());
        desk.save();
        EXPECT_EQ(desk.rows("Select EncounterID,PatientID From Encounter"), "7|P1");
    }
}

TEST(ucNIPPanel, ALoadThatFailsLeavesNothingOfThePatientBefore) {
    for (const char* statement : {"From NIP_Custom1", "from Encounter", "From Provider"}) {
        SCOPED_TRACE(statement);
        PanelDesk desk;
        ASSERT_TRUE(desk.panel.LoadNipInfo(7, "P1"));
        desk.encounter(9, "P2", "2/2/2026");
        desk.db->failOn = statement;
        EXPECT_FALSE(desk.panel.LoadNipInfo(9, "P2"));
        EXPECT_EQ(desk.user->boxes.back(),
                  (ShownBox{"This Nip could not be read from the database. Please try again.",
                            MsgBoxStyle::Exclamation, ""}));
        EXPECT_EQ(desk.pulse().text() + desk.description().text(), "");
        desk.db->failOn.clear();
        EXPECT_TRUE(desk.panel.LoadNipInfo(7, "P1"));
        EXPECT_EQ(desk.pulse().text(), "72");
    }
}

TEST(ucNIPPanel, CreatesNoNipOfNobody) {
    PanelDesk desk;
    desk.panel.LoadNipInfo(7, "P1");
    for (const char* nobody : {"", "  "})
        EXPECT_FALSE(desk.panel.CreateNip(nobody));
    EXPECT_EQ(desk.user->boxes.size(), 2U);
    EXPECT_EQ(desk.user->boxes.back().text, "No patient is chosen. A Nip cannot be created without one.");
    EXPECT_EQ(desk.pulse().text(), "72");
}

TEST(ucNIPPanel, UnsavedEntriesCanStillBeSavedWhenThePanelIsToCustomizeOnly) {
    PanelDesk desk;
    desk.panel.LoadNipInfo(7, "P1");
    desk.type(desk.pulse(), "55");
    desk.panel.CustomizeOnly(true);
    EXPECT_TRUE(desk.part<QWidget>("cmdNipButton(0)").isVisible());
    desk.save();
    EXPECT_EQ(desk.rows("Select Pulse From NIP_Custom1"), "55");
    EXPECT_FALSE(desk.part<QWidget>("cmdNipButton(0)").isVisible());
}

TEST(ucNIPPanel, AStructureThatCouldNotBeReadIsReadWhenItIsNeeded) {
    PanelDesk desk;
    desk.db->failOn = "DBFieldGroups";
    desk.panel.Initialize(desk.db);
    EXPECT_FALSE(desk.panel.LoadNipInfo(7, "P1"));
    desk.db->failOn.clear();
    EXPECT_TRUE(desk.panel.LoadNipInfo(7, "P1"));
    EXPECT_EQ(desk.pulse().text(), "72");
}

TEST(ucNIPPanel, ShowsTheButtonsThatItsPropertiesCallFor) {
    for (const bool customizeOnly : {false, true}) {
        for (const bool allowClose : {false, true}) {
            SCOPED_TRACE(testing::Message() << customizeOnly << allowClose);
            PanelDesk desk;
            desk.panel.hide();
            desk.panel.CustomizeOnly(customizeOnly);
            desk.panel.AllowClosePanel(allowClose);
            desk.panel.show();
            auto hidden = [&](const char* name) { return desk.part<QWidget>(name).isHidden(); };
            EXPECT_EQ(hidden("cmdNipButton(0)"), customizeOnly);
            EXPECT_EQ(hidden("cmdNipButton(1)"), !allowClose);
            EXPECT_EQ(hidden("cmdNipButton(2)"), customizeOnly);
            EXPECT_EQ(hidden("cmdCloseNip"), !allowClose);
            EXPECT_EQ(hidden("cmdCloseNipCustomize"), customizeOnly);
            EXPECT_EQ(hidden("paneCustomize"), !customizeOnly);
            EXPECT_FALSE(hidden("paneContent"));
            EXPECT_EQ(desk.part<QAbstractButton>("cmdNipButton(0)").text(), "Save");
            EXPECT_EQ(desk.part<QAbstractButton>("cmdNipButton(1)").text(),
                      customizeOnly ? "Close" : "Cancel");
            EXPECT_EQ(desk.part<QAbstractButton>("cmdNipButton(2)").text(), "Customize");
        }
    }
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

TEST(ucNIPPanel, TheKeyboardSavesAndCancelsFromEveryControl) {
    for (const char* part :
         {"txtEncounterInfo", "pvdateEncounter", "pvcEncounterInfo", "txtNip(0)", "atNips"}) {
        SCOPED_TRACE(part);
        PanelDesk desk;
        desk.panel.LoadNipInfo(7, "P1");
        desk.type(desk.pulse(), "88");
        QTest::keyClick(&desk.part<QWidget>(part), Qt::Key_S, Qt::ControlModifier);
        EXPECT_THAT(desk.heard, ElementsAre("closed"));
        EXPECT_EQ(desk.rows("Select Pulse From NIP_Custom1"), "88");
        desk.panel.LoadNipInfo(7, "P1");
        QTest::keyClick(&desk.part<QWidget>(part), Qt::Key_Escape);
        EXPECT_EQ(desk.heard.size(), 2U);
        desk.panel.AllowClosePanel(false);
        QTest::keyClick(&desk.part<QWidget>(part), Qt::Key_Escape);
        EXPECT_EQ(desk.heard.size(), 2U) << "no way out where none is offered";
    }
}

TEST(ucNIPPanel, TabGoesFromTheEncounterThroughTheEntriesToTheButtons) {
    PanelDesk desk;
    desk.panel.LoadNipInfo(7, "P1");
    std::vector<std::string> order;
    for (QWidget* w = desk.description().nextInFocusChain(); w != &desk.description();
         w = w->nextInFocusChain())
        if (w->focusPolicy() & Qt::TabFocus && w->isVisible() && w->isEnabled() &&
            !w->objectName().startsWith("qt_"))
            order.push_back(utf8(w->objectName()));
    EXPECT_THAT(order, ElementsAre("pvdateEncounter", "pvcEncounterInfo", "atNips", "txtNip(0)",
                                   "cmdNipButton(0)", "cmdNipButton(1)", "cmdNipButton(2)", "cmdCloseNip"));
}

TEST(ucNIPPanel, DoesNothingWhileTheHostDesignsItsForm) {
    PanelDesk desk;
    desk.panel.LoadNipInfo(7, "P1");
    desk.panel.setDesignMode(true);
    for (const char* button : {"cmdNipButton(0)", "cmdNipButton(1)", "cmdNipButton(2)", "cmdCloseNip"})
        desk.click(button);
    EXPECT_THAT(desk.heard, IsEmpty());
    EXPECT_EQ(desk.state(), "Saved Nip");
    EXPECT_FALSE(desk.part<QWidget>("paneCustomize").isVisible());
}

TEST(ucNIPPanel, ANipThatTheHostStartsWhenOneClosesStays) {
    PanelDesk desk;
    QObject::connect(
        &desk.panel, &ucNIPPanel::CloseNipPanel, &desk.panel, [&] { desk.panel.CreateNip("P9"); },
        Qt::SingleShotConnection);
    desk.panel.LoadNipInfo(7, "P1");
    desk.type(desk.pulse(), "88");
    desk.save();
    EXPECT_EQ(desk.state(), "New Nip");
    EXPECT_EQ(desk.panel.PatientID(), "P9");
    EXPECT_TRUE(desk.pulse().isEnabled());
    EXPECT_THAT(desk.user->boxes, IsEmpty());
}

TEST(ucNIPPanel, InitializedAgainItStartsAfreshWithTheNewStructure) {
    PanelDesk desk;
    desk.panel.LoadNipInfo(7, "P1");
    desk.type(desk.pulse(), "99");
    desk.field(2, "NIP_Custom1", "Weight");
    desk.panel.Initialize(desk.db);
    EXPECT_THAT(desk.user->boxes, IsEmpty());
    EXPECT_FALSE(desk.panel.isModified());
    EXPECT_TRUE(desk.panel.CreateNip("P2"));
    EXPECT_EQ(desk.pulse().text(), "");
    EXPECT_TRUE(desk.part<QLineEdit>("txtNip(1)").isVisible());
}

} // namespace Korvane
