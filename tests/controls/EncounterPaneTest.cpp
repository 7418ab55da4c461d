#include "support/NothingIsClipped.h"
#include "support/PanelDesk.h"

namespace Korvane {

using namespace Testing;

TEST(EncounterPane, OffersTheProvidersAsTheTableHasThem) {
    PanelDesk desk;
    desk.load();
    EXPECT_EQ(desk.providers().count(), 2);
    EXPECT_EQ(desk.providers().currentText(), "Dr. Ann Hale MD");
    EXPECT_EQ(desk.providers().itemText(1), "Nurse Bo Lee ") << "an empty suffix leaves its blank";
    desk.provider(3, "Dr.", "Cy", "Ng", "DO");
    desk.db->quietly("Update Encounter Set ProviderID=3");
    desk.load();
    EXPECT_EQ(desk.providers().currentText(), "Dr. Cy Ng DO");
}

TEST(EncounterPane, TakesADescriptionOfAnyLength) {
    PanelDesk desk;
    desk.db->quietly("Update Encounter Set Description='" + std::string(40000, 'x') + "'");
    desk.load();
    QTest::keyClick(&desk.description(), Qt::Key_End);
    QTest::keyClick(&desk.description(), 'y');
    desk.save();
    EXPECT_EQ(desk.rows("Select Description From Encounter"), std::string(40000, 'x') + "y");
}

TEST(EncounterPane, WrapsRatherThanClipsAtAnyWidthAndFontSize) {
    PanelDesk desk;
    desk.load();
    QWidget& pane = desk.part<QWidget>("paneEncounter");
    for (const int percent : {100, 150, 200}) {
        desk.panel.setFont(QFont(desk.panel.font().family(), 9 * percent / 100));
        for (const int width : {2400, 600, 300, 2400}) {
            SCOPED_TRACE(testing::Message() << percent << " % at " << width);
            desk.panel.resize(width, 900);
            desk.settle();
            expectNothingIsClipped(desk.panel);
            EXPECT_GE(desk.date().width(), desk.date().sizeHint().width());
            EXPECT_EQ(pane.height() < 2 * desk.date().height(), width == 2400)
                << "one row only where it fits";
        }
    }
}

} // namespace Korvane
