#include "support/NipForm.h"

#include <korvane/controls/nippanel/ChoiceModel.h>

namespace Korvane {

using Testing::NipForm;
using Testing::shownRows;

namespace {

/// A user who does not answer before something else has happened.
struct SlowUser : Testing::RecordingInteraction {
    std::function<void()> meanwhile;

    std::optional<std::string> InputBox(std::string_view, std::string_view) override {
        meanwhile();
        return "late";
    }
};

bool isInView(const QListView* list, int row) {
    return list->viewport()->rect().contains(list->visualRect(list->model()->index(row, 0)));
}

} // namespace

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

TEST(ListEntry, HasTheFirstCheckedRowInViewAndUnderTheKeys) {
    for (const char* type : {"LIST", "LIST-MULTIPLE"}) {
        NipForm form;
        form.group(2, "Group", "T");
        form.field(2, "T", "Field", {.displayType = type});
        for (int i = 0; i < 20; ++i)
            form.allowed(2, "Field", "choice " + std::to_string(i), static_cast<float>(i));
        form.store("T", {{"Field", "choice 15"}});
        form.open();
        auto* list = form.control<QListView>("gridNip(0)");
        EXPECT_TRUE(isInView(list, 15)) << type;
        list->setFocus(Qt::TabFocusReason);
        QTest::keyClick(list, Qt::Key_Space);
        EXPECT_EQ(form.saved(), "") << type << ": that answer was taken back";
        form.reload();
        EXPECT_TRUE(isInView(list, 0)) << type << ": without an answer the list begins at its top";
        form.db->quietly("Update T Set Field='choice 9'");
        form.reload();
        EXPECT_TRUE(isInView(list, 9)) << type;
    }
}

TEST(ListEntry, LeavesInTheModelWhatIsStored) {
    const struct {
        const char* type;
        const char* value;
    } cases[] = {{"LIST", "C"}, {"LIST-MULTIPLE", "A|C"}, {"LIST-EDITCONTENT", "A|new"}};
    for (const auto& c : cases) {
        NipForm form;
        form.oneField({.displayType = c.type}, "A");
        form.user->texts = {"new"};
        if (std::string_view(c.type) == "LIST-EDITCONTENT")
            form.click("cmdNip(0)");
        else
            form.click(form.control<QListView>("gridNip(0)"), 2);
        EXPECT_EQ(form.saved(), c.value);
        EXPECT_EQ(form.nip.value(1, 1), Variant(c.value)) << c.type;
    }
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

TEST(EditContentEntry, DropsAnAnswerThatComesWhenOtherEntriesAreShown) {
    NipForm form;
    form.oneField({.displayType = "LIST-EDITCONTENT"}, "x");
    auto user = std::make_shared<SlowUser>();
    const auto changeType = [&] {
        form.db->quietly("Update DBFields Set DisplayType='LIST-MULTIPLE'");
        form.rebuild();
    };
    const auto before = Interaction::install(user);
    for (const std::function<void()>& other : {std::function<void()>([&] { form.reload(); }), {changeType}}) {
        user->meanwhile = other;
        form.click("cmdNip(0)");
    }
    EXPECT_EQ(shownRows(form.control<QListView>("gridNip(0)")), "A B C [x]");
    Interaction::install(before);
    EXPECT_EQ(form.edits, 0);
}

} // namespace Korvane
