#include "support/PanelDesk.h"

namespace Korvane {

using namespace Testing;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

/// A panel in use while another desk customizes the form.
struct PanelWhileOthersCustomize : testing::Test {
    PanelDesk desk;

    PanelWhileOthersCustomize() {
        desk.field(2, "NIP_Custom1", "Weight");
        desk.panel.Initialize(desk.db);
    }
    void renamePulse() const {
        desk.elsewhere([](cNIP& other) {
            return other.EditField(1, 1,
                                   {.fieldName = "HeartRate", .caption = "The Pulse", .maxLength = 50}) &&
                   other.CreateField(1,
                                     {.fieldName = "Mood", .caption = "Mood", .maxLength = 9, .rowIndex = 1});
        });
    }
    /// In their boxes, one behind the other.
    std::string values() {
        return utf8(desk.pulse().text() + "|" + desk.part<QLineEdit>("txtNip(1)").text());
    }
    std::string heartRate() { return desk.rows("Select HeartRate,Mood From NIP_Custom1"); }
};

const auto notSavedYet = says("This Nip is not saved yet, because another desk has customized the form.");

TEST_F(PanelWhileOthersCustomize, TellsItAndKeepsWhatWasTypedIntoASavedNip) {
    desk.does("Load; pulse=99; description=Edited");
    renamePulse();
    desk.save();
    EXPECT_THAT(desk.told(), ElementsAre(notSavedYet));
    EXPECT_THAT(desk.heard, ElementsAre());
    EXPECT_EQ(heartRate(), "72|NULL");
    EXPECT_EQ(values(), "|99") << "the new field stands first";
    EXPECT_TRUE(desk.panel.isModified());
    desk.save();
    EXPECT_EQ(heartRate(), "99|");
    EXPECT_EQ(desk.rows("Select Description From Encounter"), "Edited");
}

TEST_F(PanelWhileOthersCustomize, StoresANewNipOnceAndNamesTheEntriesThatHaveNoFieldAnyMore) {
    desk.enterNewNip();
    desk.does("second=81 kg");
    desk.elsewhere([](cNIP& other) { return other.DeleteField(1, 2); });
    desk.save();
    EXPECT_THAT(desk.told(), ElementsAre(AllOf(notSavedYet, says("[Vitals] The Weight: 81 kg"))));
    EXPECT_THAT(desk.errorLog(), HasSubstr("[Vitals] The Weight: 81 kg"));
    EXPECT_EQ(desk.stored(), "7|P1|Visit, 7|72");
    EXPECT_EQ(desk.pulse().text(), "80");
    desk.save();
    EXPECT_THAT(desk.heard, ElementsAre("created 8", "closed"));
    EXPECT_EQ(desk.stored(), "7|P1|Visit 8|P2|First visit, 7|72 8|80");
}

TEST_F(PanelWhileOthersCustomize, KeepsEverythingWhenTheNewFormCannotBeRead) {
    desk.does("Load; pulse=99");
    renamePulse();
    desk.db->failOn = "GROUP BY";
    desk.save();
    desk.db->failOn.clear();
    EXPECT_EQ(desk.pulse().text(), "99");
    EXPECT_EQ(heartRate(), "72|NULL");
    desk.save();
    desk.save();
    EXPECT_EQ(heartRate(), "99|");
}

TEST_F(PanelWhileOthersCustomize, ShowsTheNewFormWithTheNextNip) {
    renamePulse();
    ASSERT_TRUE(desk.load());
    EXPECT_THAT(desk.told(),
                ElementsAre(says("Another desk has customized the form. It is shown as it is now.")));
    EXPECT_EQ(values(), "|72");
    ASSERT_TRUE(desk.panel.CreateNip("P2"));
    EXPECT_EQ(desk.told().size(), 0U);
}

} // namespace

} // namespace Korvane
