#include "support/AdminDesk.h"

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
    EXPECT_THAT(desk.heard(), testing::Not(testing::Contains("ok")));
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
    QTest::keyPress(&desk.button(), Qt::Key_Return);
    EXPECT_EQ(desk.items() + utf8(desk.admin->ListData()), "");
    EXPECT_EQ(desk.focus() + desk.says(), "lstAddtoList-Remove from List");
    hold(Qt::Key_Return);
    EXPECT_THAT(desk.heard(), testing::Not(testing::Contains("ok"))) << "held down still";
}

TEST(ValueList, TheButtonDoesWhatTheUserWentToLast) {
    AdminDesk desk;
    desk.click(desk.entry());
    desk.click(desk.button());
    EXPECT_EQ(desk.items(), "[a][b][c]") << "nothing was typed";
    desk.click(desk.entry());
    desk.type("x");
    desk.clickItem(0);
    EXPECT_EQ(desk.says(), "Remove from List") << "the one that was selected all along";
    desk.entry().setFocus();
    EXPECT_EQ(desk.says(), "Add to List");
    desk.list().setFocus(Qt::TabFocusReason);
    EXPECT_EQ(desk.says(), "Remove from List");
}

TEST(ValueList, NeverMakesTwoValuesOfOneWithASlash) {
    AdminDesk desk;
    desk.click(desk.entry());
    desk.type("mg/dL");
    EXPECT_EQ(desk.entry().text(), "mgdL");
    EXPECT_TRUE(QToolTip::text().contains("\"/\"")) << QToolTip::text().toStdString();
    desk.admin->ListBoxText("km/h");
    desk.heard();
    desk.press(Qt::Key_Return);
    EXPECT_EQ(desk.items() + utf8(desk.entry().text()), "[a][b][c]km/h") << "to be put right";
    EXPECT_THAT(desk.heard(), IsEmpty());
}

TEST(ValueList, CanBeEditedOnlyForAListBoxThatTheFormLetsBeEdited) {
    AdminDesk desk;
    const auto isEditable = [&desk] {
        EXPECT_EQ(desk.list().isEnabled(), desk.entry().isEnabled());
        return desk.entry().isEnabled();
    };
    for (qint16 type = 0; type <= dbxadmin::Email; ++type) {
        desk.admin->displayType(type);
        EXPECT_EQ(isEditable(), type == dbxadmin::ListBox) << type;
    }
    desk.admin->EnableAddToList();
    EXPECT_FALSE(isEditable()) << "an Email";
    desk.admin->displayType(dbxadmin::ListBox);
    for (const bool editable : {false, true}) {
        editable ? desk.admin->EnableAddToList() : desk.admin->disableAddToList();
        EXPECT_EQ(isEditable(), editable);
    }
    desk.admin->UpdateEnabled(false);
    EXPECT_FALSE(isEditable());
}

TEST(ValueList, LeavesNoOthersValuesInSightWhereTheyAreNotUsed) {
    AdminDesk desk;
    desk.admin->disableAddToList();
    EXPECT_EQ(desk.items(), "[a][b][c]") << "a list box, which is only not to be edited";
    desk.admin->displayType(1);
    desk.admin->disableAddToList();
    EXPECT_EQ(desk.items() + utf8(desk.admin->ListData()), "a/b/c");
    desk.admin->displayType(3);
    desk.admin->EnableAddToList();
    EXPECT_EQ(desk.items(), "[a][b][c]") << "of use again";
    desk.admin->ListData("");
    EXPECT_EQ(desk.items(), "[a][b][c]") << "an empty text leaves the list as it is";
    desk.admin->ListData("p//q");
    EXPECT_EQ(desk.items(), "[p][][q]");
    desk.admin->ClearList();
    EXPECT_EQ(desk.items() + utf8(desk.admin->ListData()), "");
}

} // namespace Korvane
