#include "support/PanelDesk.h"

#include <korvane/nip/cNIP.h>

#include <gmock/gmock.h>

namespace Korvane {

using namespace Testing;
using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

/// A panel in use while another desk customizes the form.
struct PanelWhileOthersCustomize : testing::Test {
    PanelDesk desk;
    cNIP other;

    PanelWhileOthersCustomize() {
        desk.field(2, "NIP_Custom1", "Weight");
        desk.panel.Initialize(desk.db);
    }

    void customize(const std::function<bool()>& change) {
        const auto connection = ado::open(desk.address());
        ASSERT_TRUE(other.LoadStructure(connection));
        ASSERT_TRUE(change() && other.SaveStructure()) << desk.errorLog();
    }
    void renamePulse() {
        customize([&] {
            return other.EditField(1, 1,
                                   {.fieldName = "HeartRate", .caption = "The Pulse", .maxLength = 50}) &&
                   other.CreateField(1,
                                     {.fieldName = "Mood", .caption = "Mood", .maxLength = 9, .rowIndex = 1});
        });
    }
    void deleteWeight() {
        customize([&] { return other.DeleteField(1, 2); });
    }
};

const auto notSavedYet =
    Field(&ShownBox::text, StartsWith("This Nip is not saved yet, because another desk has "
                                      "customized the form."));

TEST_F(PanelWhileOthersCustomize, TellsItAndKeepsWhatWasTypedIntoASavedNip) {
    ASSERT_TRUE(desk.panel.LoadNipInfo(7, "P1"));
    desk.type(desk.pulse(), "99");
    desk.type(desk.description(), "Edited");
    renamePulse();
    desk.save();
    EXPECT_THAT(desk.user->boxes, ElementsAre(notSavedYet));
    EXPECT_THAT(desk.heard, ElementsAre());
    EXPECT_EQ(desk.rows("Select HeartRate,Mood From NIP_Custom1"), "72|NULL");
    EXPECT_EQ(utf8(desk.part<QLineEdit>("txtNip(0)").text()), "") << "the new field stands first";
    EXPECT_EQ(utf8(desk.part<QLineEdit>("txtNip(1)").text()), "99");
    EXPECT_TRUE(desk.panel.isModified());
    desk.save();
    EXPECT_EQ(desk.rows("Select HeartRate,Mood From NIP_Custom1"), "99|");
    EXPECT_EQ(desk.rows("Select Description From Encounter"), "Edited");
}

TEST_F(PanelWhileOthersCustomize, StoresANewNipOnceAndNamesTheEntriesThatHaveNoFieldAnyMore) {
    desk.enterNewNip();
    desk.type(desk.part<QLineEdit>("txtNip(1)"), "81 kg");
    deleteWeight();
    desk.save();
    EXPECT_THAT(
        desk.user->boxes,
        ElementsAre(AllOf(notSavedYet, Field(&ShownBox::text, HasSubstr("[Vitals] The Weight: 81 kg")))));
    EXPECT_THAT(desk.errorLog(), HasSubstr("[Vitals] The Weight: 81 kg"));
    EXPECT_EQ(desk.rows("Select Count(*) From Encounter"), "1");
    EXPECT_EQ(utf8(desk.pulse().text()), "80");
    desk.save();
    EXPECT_THAT(desk.heard, ElementsAre("created 8", "closed"));
    EXPECT_EQ(desk.rows("Select EncounterID,Pulse From NIP_Custom1 Where EncounterID=8"), "8|80");
}

TEST_F(PanelWhileOthersCustomize, ShowsTheNewFormWithTheNextNip) {
    renamePulse();
    ASSERT_TRUE(desk.panel.LoadNipInfo(7, "P1"));
    EXPECT_THAT(desk.user->boxes,
                ElementsAre(Field(&ShownBox::text,
                                  "Another desk has customized the form. It is shown as it is now.")));
    EXPECT_EQ(utf8(desk.part<QLineEdit>("txtNip(1)").text()), "72");
    ASSERT_TRUE(desk.panel.CreateNip("P2"));
    EXPECT_EQ(desk.user->boxes.size(), 1U);
}

TEST_F(PanelWhileOthersCustomize, KeepsEverythingWhenTheNewFormCannotBeRead) {
    ASSERT_TRUE(desk.panel.LoadNipInfo(7, "P1"));
    desk.type(desk.pulse(), "99");
    renamePulse();
    desk.db->failOn = "GROUP BY";
    desk.save();
    desk.db->failOn.clear();
    EXPECT_EQ(utf8(desk.pulse().text()), "99");
    EXPECT_EQ(desk.rows("Select HeartRate From NIP_Custom1"), "72");
    desk.save();
    desk.save();
    EXPECT_EQ(desk.rows("Select HeartRate From NIP_Custom1"), "99");
}

} // namespace

} // namespace Korvane
