#include "support/NipForm.h"

#include <korvane/controls/nippanel/ChoiceModel.h>

#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QWheelEvent>

namespace Korvane {

using Testing::NipForm;
using Testing::shownRows;

namespace {

/// One entry control, of a field with the allowed values A, B, C, over a stored value.
struct Entry : NipForm {
    explicit Entry(const Testing::FieldGiven& given, std::string_view stored) { oneField(given, stored); }
    explicit Entry(const char* type, std::string_view stored) : Entry({.displayType = type}, stored) {}

    QLineEdit& box() { return *control<QLineEdit>("txtNip(0)"); }
    QComboBox& combo() { return *control<QComboBox>("cboNip(0)"); }
    QListView* list() { return control<QListView>("gridNip(0)"); }

    /// Behind the save the model has what is stored.
    std::string saved() {
        const std::string stored = NipForm::saved();
        EXPECT_EQ(nip.value(1, 1), Variant(stored));
        return stored;
    }
    static void press(QWidget& widget, std::initializer_list<Qt::Key> keys) {
        for (const Qt::Key key : keys)
            QTest::keyClick(&widget, key);
    }
};

} // namespace

TEST(EntryControl, OffersTheAllowedValuesAndAtTheEndTheStoredOneThatIsNotAmongThem) {
    const struct {
        const char* type;
        const char* stored;
        const char* shown;
    } cases[] = {
        {"COMBOBOX", "B", "A [B] C"},
        {"COMBOBOX", "gone", "A B C [gone]"},
        {"COMBOBOX", "", "A B C"},
        {"COMBOBOX-RESTRICTED", "B", " A [B] C"},
        {"COMBOBOX-RESTRICTED", "gone", " A B C [gone]"},
        {"COMBOBOX-RESTRICTED", "", "[] A B C"},
        {"LIST", "", "A B C"},
        {"LIST", "a|b", "A B C [a|b]"},
        {"LIST-MULTIPLE", "C|A", "[A] B [C]"},
        {"LIST-MULTIPLE", "gone|B", "A [B] C [gone]"},
        {"LIST-MULTIPLE", "A|A", "[A] B C [A]"},
        {"LIST-EDITCONTENT", "x|y|y|", "x y y "},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.type) + " " + c.stored);
        Entry entry(c.type, c.stored);
        if (auto* combo = entry.tabs.findChild<QComboBox*>()) {
            EXPECT_EQ(combo->currentText(), c.stored);
            QStringList items;
            for (int i = 0; i < combo->count(); ++i)
                items << (i == combo->currentIndex() ? "[" + combo->itemText(i) + "]" : combo->itemText(i));
            EXPECT_EQ(utf8(items.join(' ')), c.shown);
        } else {
            EXPECT_EQ(shownRows(entry.list()), c.shown);
        }
        EXPECT_EQ(entry.NipForm::saved(), c.stored);
        EXPECT_EQ(entry.edits, 0);
    }
}

TEST(ComboEntry, TakesAnyTextAsItIsTyped) {
    Entry entry("COMBOBOX", "A");
    QLineEdit& text = *entry.combo().lineEdit();
    text.selectAll();
    QTest::keyClicks(&text, "b");
    QTest::keyClick(&text, Qt::Key_Return);
    entry.after.setFocus();
    EXPECT_EQ(entry.saved(), "b") << "not the item B";
    EXPECT_GT(entry.edits, 0);
}

TEST(ComboEntry, TakesOnlyItemsWhereItIsRestrictedAndLetsAnAnswerBeTakenBack) {
    Entry entry("COMBOBOX-RESTRICTED", "gone");
    QComboBox& combo = entry.combo();
    EXPECT_FALSE(combo.isEditable());
    QTest::keyClicks(&combo, "b");
    EXPECT_EQ(entry.saved(), "B");
    EXPECT_GE(combo.findText("gone"), 0) << "until the form is filled again";
    entry.press(combo, {Qt::Key_Home});
    EXPECT_EQ(entry.saved(), "");
    QWheelEvent wheel({5, 5}, combo.mapToGlobal(QPoint(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&combo, &wheel);
    EXPECT_EQ(combo.currentText(), "") << "the wheel is the page's";
}

TEST(ListEntry, HasAtMostOneRowChecked) {
    Entry entry("LIST", "gone");
    for (const auto& [row, shown, saved] :
         {std::tuple{1, "A [B] C gone", "B"}, {3, "A B C [gone]", "gone"}, {3, "A B C gone", ""}}) {
        entry.click(entry.list(), row);
        EXPECT_EQ(shownRows(entry.list()), shown);
        EXPECT_EQ(entry.saved(), saved);
    }
    EXPECT_EQ(entry.edits, 3);
}

TEST(ListEntry, RefusesAValueThatWouldComeBackAsTwo) {
    Entry entry("LIST-MULTIPLE", "");
    entry.allowed(2, "Field", "left|right", 9);
    entry.open();
    entry.click(entry.list(), 3);
    ASSERT_EQ(entry.user->boxes.size(), 1U);
    EXPECT_EQ(entry.user->boxes[0].style, MsgBoxStyle::Information);
    EXPECT_EQ(shownRows(entry.list()), "A B C left|right");
    EXPECT_EQ(entry.edits, 0);
}

TEST(ListEntry, HasTheFirstCheckedRowInViewAndUnderTheKeys) {
    Entry entry("LIST-MULTIPLE", "choice 15");
    for (int i = 0; i < 20; ++i)
        entry.allowed(2, "Field", "choice " + std::to_string(i), static_cast<float>(10 + i));
    entry.open();
    EXPECT_TRUE(entry.list()->viewport()->rect().contains(
        entry.list()->visualRect(entry.list()->model()->index(18, 0))));
    entry.list()->setFocus(Qt::TabFocusReason);
    entry.press(*entry.list(), {Qt::Key_Space});
    EXPECT_EQ(entry.saved(), "") << "that answer was taken back";
}

TEST(EditContentEntry, AddsEntriesWithoutCheckBoxesAndOnlyWhatWouldComeBack) {
    Entry entry("LIST-EDITCONTENT", "x|y|y|");
    const QAbstractItemModel& model = *entry.list()->model();
    EXPECT_FALSE(model.index(0, 0).data(Qt::CheckStateRole).isValid());
    entry.user->texts = {std::nullopt, "", "  ", "a|b", "new entry"};
    while (!entry.user->texts.empty()) {
        EXPECT_EQ(shownRows(entry.list()), "x y y ");
        entry.click("cmdNip(0)");
        EXPECT_EQ(entry.user->inputs.back().prompt, "Please enter the content for The Field:");
    }
    ASSERT_EQ(entry.user->boxes.size(), 1U) << "of the entry with the bar";
    EXPECT_EQ(entry.user->boxes[0].style, MsgBoxStyle::Information);
    EXPECT_EQ(entry.list()->currentIndex().row(), 4);
    EXPECT_EQ(entry.list()->currentIndex().data(ChoiceModel::IndexRole), 5);
    entry.click(entry.list(), 1);
    entry.click("cmdNip(1)");
    EXPECT_EQ(entry.saved(), "x|y||new entry");
    EXPECT_EQ(entry.edits, 2);
}

TEST(EditContentEntry, RemovesUntilNothingIsLeft) {
    Entry entry("LIST-EDITCONTENT", "x|y|z");
    entry.list()->setFocus();
    for (const char* left : {"y|z", "z", "", ""}) {
        entry.press(*entry.list(), {Qt::Key_Delete});
        EXPECT_EQ(entry.saved(), left);
    }
}

TEST(EditContentEntry, DropsAnAnswerThatComesWhenOtherEntriesAreShown) {
    Entry entry("LIST-EDITCONTENT", "x");
    entry.user->texts = {"late", "later"};
    entry.user->whenShown = [&] { entry.reload(); };
    entry.click("cmdNip(0)");
    EXPECT_EQ(shownRows(entry.list()), "x");
    entry.user->whenShown = [&] {
        entry.db->quietly("Update DBFields Set DisplayType='LIST-MULTIPLE'");
        entry.rebuild();
    };
    entry.click("cmdNip(0)");
    EXPECT_EQ(shownRows(entry.list()), "A B C [x]");
    EXPECT_EQ(entry.edits, 0);
}

TEST(TextEntry, TakesNoMoreThanTheMaxLengthWhereThereIsOneAndKeepsALineBreak) {
    const std::string x40(40, 'x');
    for (const auto& [maxLength, stored, saved] :
         {std::tuple{10, "abc", std::string("abcxxxxxxx")}, {0, "a\nb", "a\nb" + x40}}) {
        Entry entry({.maxLength = static_cast<std::int16_t>(maxLength)}, stored);
        entry.press(entry.box(), {Qt::Key_End});
        QTest::keyClicks(&entry.box(), qt(x40));
        EXPECT_EQ(entry.saved(), saved);
    }
}

TEST(TextEntry, ShowsALongerTextWholeAndLetsItOnlyBeShortened) {
    Entry entry({.maxLength = 5}, "12345678");
    QLineEdit& box = entry.box();
    ASSERT_EQ(box.text(), "12345678");
    entry.press(box, {Qt::Key_End, Qt::Key_Backspace});
    EXPECT_EQ(box.text(), "1234567") << "still longer, but shorter than it was";
    QTest::keyClicks(&box, "x");
    EXPECT_EQ(box.text(), "1234567") << "no longer again, other than by taking a change back";
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.text(), "12345678");
    entry.press(box, {Qt::Key_Backspace, Qt::Key_Backspace, Qt::Key_Backspace, Qt::Key_Backspace});
    QTest::keyClicks(&box, "xyz");
    EXPECT_EQ(entry.saved(), "1234x");
    EXPECT_GT(entry.edits, 0);
}

TEST(TextEntry, TakesOfAPasteWhatFitsInWholeCharacters) {
    const QString smile = QString::fromUtf8("\U0001F600");
    const struct {
        const char* about;
        QString loaded;
        int from, to; ///< what is selected
        QString pasted;
        QString left;
    } cases[] = {
        {"a half would fit", "aaaa", 4, 4, smile, "aaaa"},
        {"one and a half would fit", "aab", 2, 2, smile + smile, "aa" + smile + "b"},
        {"over a text that is too long", "abcdefgh", 0, 8, "123456", "12345"},
        {"over one, and a half would fit", "abcdefgh", 0, 8, "1234" + smile, "1234"},
        {"into one that is still too long", "abcdefgh", 3, 4, "123", "abcefgh"},
    };
    for (const auto& c : cases) {
        Entry entry({.maxLength = 5}, utf8(c.loaded));
        entry.box().setSelection(c.from, c.to - c.from);
        QApplication::clipboard()->setText(c.pasted);
        entry.box().paste();
        EXPECT_EQ(entry.saved(), utf8(c.left)) << c.about;
    }
}

} // namespace Korvane
