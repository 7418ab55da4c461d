#include "support/AdminDesk.h"

#include <QClipboard>
#include <QToolTip>

namespace Korvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(ValueList, AddsWhatIsTypedByTheButtonAndByEnter) {
    AdminDesk desk;
    desk.click(desk.entry());
    desk.type("d e");
    EXPECT_EQ(desk.says(), "Add to List");
    EXPECT_EQ(desk.admin->ListData(), "a/b/c") << "as it was set";
    desk.heard();
    desk.click(desk.button());
    EXPECT_EQ(desk.admin->ListData(), "a/b/c/d e/");
    EXPECT_THAT(desk.heard(), ElementsAre("ListData", "ListBoxText"));
    EXPECT_EQ(desk.focus() + utf8(desk.entry().text()), "txtAddtoList");
    EXPECT_EQ(desk.says(), "-Add to List");
    desk.type("f");
    desk.press(Qt::Key_Return);
    desk.press(Qt::Key_Enter); // one too many
    EXPECT_EQ(desk.items(), "[a][b][c][d e][f]");
    EXPECT_EQ(desk.list().currentRow(), 4);
    EXPECT_THAT(desk.heard(), testing::Not(testing::Contains("ok")));
    desk.admin->ListData(desk.admin->ListData());
    EXPECT_EQ(desk.items(), "[a][b][c][d e][f]");
}

TEST(ValueList, RemovesWhatIsSelectedByTheButtonAndByDelete) {
    AdminDesk desk;
    desk.clickItem(1);
    EXPECT_EQ(desk.says(), "Remove from List");
    EXPECT_FALSE(desk.admin->DataChanged());
    desk.heard();
    desk.click(desk.button());
    desk.click(desk.button());
    EXPECT_EQ(desk.items(), "[a][c]") << "another is not selected";
    EXPECT_EQ(desk.admin->ListData(), "a/c/");
    EXPECT_TRUE(desk.admin->DataChanged());
    EXPECT_THAT(desk.heard(), ElementsAre("ListData"));
    desk.clickItem(0);
    desk.press(Qt::Key_Down);
    const auto hold = [&desk](Qt::Key key) {
        QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &held);
    };
    hold(Qt::Key_Delete);
    EXPECT_EQ(desk.items(), "[a][c]");
    desk.press(Qt::Key_Delete);
    EXPECT_EQ(desk.items(), "[a]");
    desk.button().setFocus();
    hold(Qt::Key_Return);
    EXPECT_EQ(desk.items(), "[a]");
    desk.press(Qt::Key_Return);
    EXPECT_EQ(desk.items() + utf8(desk.admin->ListData()), "");
    EXPECT_EQ(desk.says(), "-Remove from List");
    EXPECT_EQ(desk.focus(), "lstAddtoList");
    hold(Qt::Key_Return);
    EXPECT_THAT(desk.heard(), testing::Not(testing::Contains("ok"))) << "held down still";
}

TEST(ValueList, TheButtonDoesWhatTheUserWentToLast) {
    AdminDesk desk;
    desk.admin->ListMode(1);
    EXPECT_EQ(desk.says(), "Remove from List");
    desk.click(desk.entry());
    EXPECT_EQ(desk.says(), "Add to List");
    desk.click(desk.button());
    EXPECT_EQ(desk.items(), "[a][b][c]") << "nothing was typed";
    desk.click(desk.entry());
    desk.type("x");
    desk.clickItem(0);
    EXPECT_EQ(desk.says(), "Remove from List") << "the one that was selected all along";
    desk.entry().setFocus();
    EXPECT_EQ(desk.says(), "Add to List");
    desk.press(Qt::Key_Backspace);
    EXPECT_EQ(desk.says(), "-Add to List");
    desk.list().setFocus(Qt::TabFocusReason);
    EXPECT_EQ(desk.says(), "Remove from List");
    EXPECT_EQ(desk.admin->ListMode(), 1);
    QTest::mouseClick(desk.list().viewport(), Qt::LeftButton, Qt::ControlModifier,
                      desk.list().visualItemRect(desk.list().item(0)).center());
    desk.admin->ListMode(1);
    desk.click(desk.button());
    EXPECT_EQ(desk.items(), "[a][b][c]") << "nothing is selected";
}

TEST(ValueList, NeverMakesTwoValuesOfOneWithASlash) {
    AdminDesk desk;
    desk.click(desk.entry());
    desk.type("mg/dL");
    EXPECT_EQ(desk.entry().text(), "mgdL");
    EXPECT_TRUE(QToolTip::text().contains("\"/\"")) << QToolTip::text().toStdString();
    desk.entry().clear();
    QGuiApplication::clipboard()->setText("km/h");
    desk.entry().paste();
    EXPECT_EQ(desk.entry().text(), "") << "all of it or nothing";
    desk.admin->ListBoxText("km/h");
    desk.heard();
    desk.press(Qt::Key_Return);
    EXPECT_EQ(desk.items() + utf8(desk.entry().text()), "[a][b][c]km/h");
    EXPECT_THAT(desk.heard(), IsEmpty());
    desk.press(Qt::Key_Home);
    desk.press(Qt::Key_Right);
    desk.press(Qt::Key_Right);
    desk.press(Qt::Key_Delete);
    desk.press(Qt::Key_Return);
    EXPECT_EQ(desk.admin->ListData(), "a/b/c/kmh/");
}

TEST(ValueList, AnEmptyTextIsKeptButLeavesTheListAsItIs) {
    AdminDesk desk;
    desk.admin->ListData("");
    EXPECT_EQ(desk.items() + utf8(desk.admin->ListData()), "[a][b][c]");
    desk.admin->ListData("x/y");
    desk.admin->ClearList();
    EXPECT_EQ(desk.items() + utf8(desk.admin->ListData()), "");
    desk.admin->ListData("p//q");
    EXPECT_EQ(desk.items(), "[p][][q]");
    EXPECT_EQ(desk.list().currentRow(), 0);
    EXPECT_FALSE(desk.admin->DataChanged());
}

TEST(ValueList, CanBeEditedOnlyForAListBoxThatTheFormLetsBeEdited) {
    AdminDesk desk;
    const auto editable = [&desk] {
        const bool all = desk.entry().isEnabled() && desk.list().isEnabled() && desk.button().isEnabled();
        const bool any = desk.entry().isEnabled() || desk.list().isEnabled() || desk.button().isEnabled();
        EXPECT_EQ(all, any);
        const QColor shown = desk.entry().grab().toImage().pixelColor(desk.entry().rect().center());
        EXPECT_EQ(shown, desk.entry().palette().color(all ? QPalette::Base : QPalette::Window));
        return all;
    };
    auto& types = desk.part<QComboBox>("cboInputDisplay");
    for (int type = 0; type < types.count(); ++type) {
        types.setFocus();
        desk.press(Qt::Key_Home);
        for (int down = 0; down < type; ++down)
            desk.press(Qt::Key_Down);
        EXPECT_EQ(editable(), types.currentText() == "List box") << type;
    }
    desk.admin->EnableAddToList();
    EXPECT_FALSE(editable()) << "an Email";
    desk.admin->displayType(3);
    EXPECT_TRUE(editable());
    desk.admin->disableAddToList();
    EXPECT_FALSE(editable());
    desk.admin->EnableAddToList();
    desk.admin->UpdateEnabled(false);
    EXPECT_FALSE(editable());
    desk.admin->displayType(1);
    desk.admin->UpdateEnabled(true);
    EXPECT_FALSE(editable());
}

TEST(ValueList, LeavesNoOthersValuesInSightWhereTheyAreNotUsed) {
    AdminDesk desk;
    desk.admin->disableAddToList();
    EXPECT_EQ(desk.items(), "[a][b][c]") << "a list box, which is only not to be edited";
    desk.admin->displayType(1);
    desk.admin->disableAddToList();
    EXPECT_EQ(desk.items() + utf8(desk.admin->ListData()), "a/b/c");
    desk.admin->UpdateEnabled(false);
    desk.admin->displayType(3);
    desk.admin->EnableAddToList();
    EXPECT_EQ(desk.items(), "[a][b][c]") << "of use again";
    desk.admin->displayType(1);
    desk.admin->ListData("");
    desk.admin->disableAddToList();
    desk.admin->displayType(3);
    desk.admin->EnableAddToList();
    EXPECT_EQ(desk.items(), "") << "of the next field, which has none";
}

} // namespace Korvane
