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
        const int top = made.button(0).y();
        for (const Row& row : rows) {
            SCOPED_TRACE(row.width);
            made.resize(row.width, row.height);
            EXPECT_THAT(made.frame().width(), made.px(row.frameWidth));
            EXPECT_THAT(made.frame().height(), made.px(row.frameHeight));
            for (int i = 0; i < 4; ++i) {
                EXPECT_THAT(made.button(i).width(), made.px(row.buttonWidth));
                EXPECT_THAT(made.button(i).height(), made.px(row.buttonHeight));
                EXPECT_EQ(made.button(i).y(), top);
                if (i == 0 || row.buttonWidth == 0) continue;
                const QRect before = made.button(i - 1).geometry(), here = made.button(i).geometry();
                EXPECT_EQ(direction == Qt::LeftToRight ? here.left() - before.right()
                                                       : before.left() - here.right(),
                          1);
            }
        }
    }
}

TEST(movebtn, ComesBackFromTheBagDisabledToo) {
    movebtn saved;
    QStringList marked;
    QObject::connect(&saved, &movebtn::PropertyChanged, [&](const QString& name) { marked << name; });
    const QStringList texts{"Caption", "btnText1", "btnText2", "btnText3", "btnText4"};
    for (const QString& name : texts)
        EXPECT_TRUE(saved.setProperty(name.toUtf8(), "my " + name));
    saved.Enabled(false);
    EXPECT_EQ(marked, texts + QStringList{"Enabled"});
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
    made.Caption("Patients");
    made.Enabled(false);
    made.InitProperties();
    EXPECT_EQ(made.Caption(), "Move Buttons");
    read.ReadProperties(PropertyBag());
    EXPECT_EQ(read.Caption(), "Mover Buttons");
    for (const movebtn* each : {&made, &read}) {
        EXPECT_EQ(each->btnText1() + ' ' + each->btnText2() + ' ' + each->btnText3() + ' ' + each->btnText4(),
                  "|< < > >|");
        EXPECT_TRUE(each->Enabled());
    }
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
