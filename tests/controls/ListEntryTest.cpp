#include "support/NipForm.h"

#include <korvane/controls/nippanel/ChoiceModel.h>

namespace Korvane {

using Testing::NipForm;
using Testing::shownRows;

TEST(ListEntry, ChecksTheStoredValueAndKeepsOneThatIsNotInTheList) {
    const struct {
        const char* type;
        const char* stored;
        const char* rows;
    } cases[] = {
        {"LIST", "B", "A [B] C"},
        {"LIST", "", "A B C"},
        {"LIST", "a|b", "A B C [a|b]"},
        {"LIST-MULTIPLE", "C|A", "[A] B [C]"},
        {"LIST-MULTIPLE", "gone|B", "A [B] C [gone]"},
        {"LIST-MULTIPLE", "A|", "[A] B C"},
        {"LIST-MULTIPLE", "A|A", "[A] B C [A]"},
    };
    for (const auto& c : cases) {
        NipForm form;
        form.oneField({.displayType = c.type}, c.stored);
        EXPECT_EQ(shownRows(form.control<QListView>("gridNip(0)")), c.rows) << c.type << " " << c.stored;
        EXPECT_EQ(form.saved(), c.stored);
        EXPECT_EQ(form.edits, 0);
    }
}

TEST(ListEntry, HasAtMostOneRowChecked) {
    NipForm form;
    form.oneField({.displayType = "LIST"}, "gone");
    auto* list = form.control<QListView>("gridNip(0)");
    form.click(list, 1);
    EXPECT_EQ(shownRows(list), "A [B] C gone");
    EXPECT_EQ(form.saved(), "B");
    form.click(list, 3);
    EXPECT_EQ(form.saved(), "gone") << "it can be chosen again";
    form.click(list, 3);
    EXPECT_EQ(shownRows(list), "A B C gone");
    EXPECT_EQ(form.saved(), "");
    EXPECT_EQ(form.edits, 3);
}

TEST(ListEntry, IsWorkedByTheKeyboard) {
    NipForm form;
    form.oneField({.displayType = "LIST-MULTIPLE"}, "B");
    auto* list = form.control<QListView>("gridNip(0)");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_End);
    QTest::keyClick(list, Qt::Key_Space);
    QTest::keyClick(list, Qt::Key_Home);
    QTest::keyClick(list, Qt::Key_Space);
    EXPECT_EQ(form.saved(), "A|B|C") << "in the order of the list";
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Space);
    EXPECT_EQ(form.saved(), "A|C");
    QTest::keyClick(list, Qt::Key_Tab);
    EXPECT_TRUE(form.after.hasFocus());
}

TEST(ListEntry, RefusesAValueThatWouldComeBackAsTwo) {
    NipForm form;
    form.group(2, "Group", "T");
    form.field(2, "T", "Field", {.displayType = "LIST-MULTIPLE"});
    form.allowed(2, "Field", "left|right", 1);
    form.store("T", {{"Field", ""}});
    form.open();
    auto* list = form.control<QListView>("gridNip(0)");
    form.click(list, 0);
    ASSERT_EQ(form.user->boxes.size(), 1U);
    EXPECT_EQ(form.user->boxes[0].style, MsgBoxStyle::Information);
    EXPECT_EQ(shownRows(list), "left|right");
    EXPECT_EQ(form.edits, 0);
}

TEST(EditContentEntry, ShowsTheEntriesWithoutCheckBoxesAndSavesThemAsTheyAreLeft) {
    NipForm form;
    form.oneField({.displayType = "LIST-EDITCONTENT"}, "x|y|y|");
    auto* list = form.control<QListView>("gridNip(0)");
    EXPECT_EQ(shownRows(list), "x y y ");
    EXPECT_FALSE(list->model()->index(0, 0).data(Qt::CheckStateRole).isValid());
    EXPECT_EQ(form.saved(), "x|y|y|");

    form.user->texts = {"new entry"};
    form.click("cmdNip(0)");
    ASSERT_EQ(form.user->inputs.size(), 1U);
    EXPECT_EQ(form.user->inputs[0].prompt, "Please enter the content for The Field:");
    EXPECT_EQ(list->currentIndex().row(), 4);
    EXPECT_EQ(list->currentIndex().data(ChoiceModel::IndexRole), 5);

    form.click(list, 1);
    form.click("cmdNip(1)");
    EXPECT_EQ(form.saved(), "x|y||new entry");
    EXPECT_EQ(form.edits, 2);
}

TEST(EditContentEntry, AddsNothingWhereThereIsNothingThatWouldComeBack) {
    NipForm form;
    form.oneField({.displayType = "LIST-EDITCONTENT"}, "x");
    form.user->texts = {std::nullopt, "", "  ", "a|b"};
    for (int i = 0; i < 4; ++i)
        form.click("cmdNip(0)");
    EXPECT_TRUE(form.user->texts.empty());
    ASSERT_EQ(form.user->boxes.size(), 1U) << "the entry with the bar";
    EXPECT_EQ(form.user->boxes[0].style, MsgBoxStyle::Information);
    EXPECT_EQ(shownRows(form.control<QListView>("gridNip(0)")), "x");
    EXPECT_EQ(form.edits, 0);
}

TEST(EditContentEntry, RemovesUntilNothingIsLeft) {
    NipForm form;
    form.oneField({.displayType = "LIST-EDITCONTENT"}, "x|y");
    auto* remove = form.control<QPushButton>("cmdNip(1)");
    EXPECT_TRUE(remove->isEnabled());
    form.click("cmdNip(1)");
    EXPECT_EQ(form.saved(), "y");
    remove->setFocus();
    QTest::keyClick(remove, Qt::Key_Space);
    EXPECT_EQ(form.saved(), "");
    EXPECT_FALSE(remove->isEnabled());
    EXPECT_TRUE(form.control<QPushButton>("cmdNip(0)")->hasFocus());

    form.user->texts = {"z"};
    QTest::keyClick(form.control<QPushButton>("cmdNip(0)"), Qt::Key_Space);
    EXPECT_TRUE(remove->isEnabled());
    form.control<QListView>("gridNip(0)")->setFocus();
    QTest::keyClick(form.control<QListView>("gridNip(0)"), Qt::Key_Delete);
    EXPECT_FALSE(remove->isEnabled());
}

} // namespace Korvane
