#include "support/ButtonForm.h"

#include <korvane/controls/buttons/movebtn.h>

namespace Korvane {

using namespace Testing;

TEST(movebtn, DividesItsFrameAmongFourButtonsThatTouch) {
    struct Row {
        int width, height, frameWidth, frameHeight, buttonWidth, buttonHeight;
    };
    constexpr std::array rows{Row{4325, 1025, 4175, 925, 1000, 600}, Row{725, 2425, 575, 2325, 100, 2000},
                              Row{90, 60, 0, 0, 0, 0}};
    for (const bool mirrored : {false, true}) {
        SizedPanel<movebtn> made(3000, 1000);
        made.panel.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        for (const Row& row : rows) {
            SCOPED_TRACE(row.width);
            made.resize(row.width, row.height);
            const int frameLeft = mirrored ? row.width - 75 - row.frameWidth : 75;
            EXPECT_TRUE(made.isAt(made.frame(), frameLeft, 50, row.frameWidth, row.frameHeight));
            for (int i = 0; i < 4; ++i) {
                const int left = 87 + i * row.buttonWidth;
                const int at = mirrored ? row.frameWidth - left - row.buttonWidth : left;
                EXPECT_TRUE(made.isAt(made.button(i), at, 280, row.buttonWidth, row.buttonHeight));
            }
        }
    }
}

TEST(movebtn, ComesBackDisabledFromTheBag) {
    PropertyBag bag;
    bag.WriteProperty("Enabled", false, true);
    movebtn read;
    read.ReadProperties(bag);
    for (const bool on : {false, true}) {
        read.Enabled(read.Enabled() || on);
        EXPECT_EQ(read.findChild<QAbstractButton*>("cmdMove(3)")->isEnabled(), on);
        EXPECT_EQ(read.findChild<QGroupBox*>("frame1")->isEnabled(), on);
    }
}

} // namespace Korvane
