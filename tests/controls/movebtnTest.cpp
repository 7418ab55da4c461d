#include "support/ButtonForm.h"

#include <korvane/controls/buttons/movebtn.h>

namespace Korvane {

using namespace Testing;

TEST(movebtn, DividesItsFrameAmongFourButtonsThatTouch) {
    struct Row {
        int width, height, frameWidth, frameHeight, buttonWidth, buttonHeight;
    };
    constexpr std::array rows{Row{4325, 1025, 4175, 925, 1000, 600}, Row{12325, 825, 12175, 725, 3000, 400},
                              Row{725, 2425, 575, 2325, 100, 2000}, Row{200, 200, 50, 100, 0, 0},
                              Row{90, 60, 0, 0, 0, 0}};
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        SizedPanel<movebtn> made(3000, 1000);
        made.panel.setLayoutDirection(direction);
        const bool mirrored = direction == Qt::RightToLeft;
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
            const QRect first = made.button(0).geometry(), second = made.button(1).geometry();
            if (row.buttonWidth == 0) continue;
            EXPECT_EQ(mirrored ? second.right() : first.right(),
                      (mirrored ? first.left() : second.left()) - 1);
        }
    }
}

TEST(movebtn, ComesBackFromTheBagDisabledToo) {
    movebtn saved;
    const Marks marked(saved);
    const QStringList texts{"Caption", "btnText1", "btnText2", "btnText3", "btnText4"};
    for (const QString& name : texts)
        EXPECT_TRUE(saved.setProperty(name.toUtf8(), "my " + name));
    saved.Enabled(false);
    EXPECT_EQ(marked.names, texts + QStringList{"Enabled"});
    PropertyBag bag, again;
    saved.WriteProperties(bag);
    movebtn read;
    read.ReadProperties(bag);
    read.WriteProperties(again);
    EXPECT_EQ(again.values().keys(), (QStringList{"Caption", "Enabled"} + texts.mid(1)));
    EXPECT_EQ(again.values(), bag.values());
    EXPECT_FALSE(read.findChild<QAbstractButton*>("cmdMove(3)")->isEnabled());
    EXPECT_FALSE(read.findChild<QGroupBox*>("frame1")->isEnabled());
    read.Enabled(true);
    EXPECT_TRUE(read.findChild<QAbstractButton*>("cmdMove(3)")->isEnabled());
}

TEST(movebtn, HasOneCaptionWhenNewAndAnotherFromAnEmptyBag) {
    movebtn made, read;
    EXPECT_EQ(made.Caption(), "Move Buttons");
    read.ReadProperties(PropertyBag());
    EXPECT_EQ(read.Caption(), "Mover Buttons");
    EXPECT_EQ((QStringList{read.btnText1(), read.btnText2(), read.btnText3(), read.btnText4()}),
              (QStringList{"|<", "<", ">", ">|"}));
    read.Enabled(false);
    read.InitProperties();
    EXPECT_EQ(read.Caption(), "Move Buttons");
    EXPECT_TRUE(read.Enabled());
}

TEST(movebtn, PointsToTheOtherSideWhereOneReadsFromTheRight) {
    const auto picture = [](int index, Qt::LayoutDirection direction) {
        movebtn panel;
        panel.setLayoutDirection(direction);
        QAbstractButton& shown = ButtonForm<movebtn>::buttonOf(panel, index);
        shown.resize(40, 30);
        return shown.grab().toImage();
    };
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(picture(i, Qt::RightToLeft), picture(3 - i, Qt::LeftToRight));
        EXPECT_NE(picture(i, Qt::RightToLeft), picture(i, Qt::LeftToRight));
    }
}

} // namespace Korvane
