#include "support/NipForm.h"

#include <QComboBox>
#include <QLineEdit>
#include <QWheelEvent>

namespace Korvane {

using Testing::NipForm;

namespace {

std::string itemsOf(const QComboBox& combo) {
    QStringList items;
    for (int i = 0; i < combo.count(); ++i)
        items << combo.itemText(i);
    return utf8(items.join(','));
}

} // namespace

TEST(ComboEntry, OffersTheAllowedValuesAndAtTheEndTheStoredOneThatIsNotAmongThem) {
    const struct {
        const char* type;
        const char* stored;
        const char* items;
    } cases[] = {
        {"COMBOBOX", "B", "A,B,C"},
        {"COMBOBOX", "gone", "A,B,C,gone"},
        {"COMBOBOX", "", "A,B,C"},
        {"COMBOBOX", "b", "A,B,C,b"},
        {"COMBOBOX-RESTRICTED", "B", ",A,B,C"},
        {"COMBOBOX-RESTRICTED", "gone", ",A,B,C,gone"},
        {"COMBOBOX-RESTRICTED", "", ",A,B,C"},
    };
    for (const auto& c : cases) {
        NipForm form;
        form.oneField({.displayType = c.type}, c.stored);
        auto* combo = form.control<QComboBox>("cboNip(0)");
        EXPECT_EQ(itemsOf(*combo), c.items) << c.type << " " << c.stored;
        EXPECT_EQ(combo->currentText(), c.stored) << c.type;
        EXPECT_EQ(form.edits, 0);
    }
}

TEST(ComboEntry, TakesAnyTextAsItIsTyped) {
    NipForm form;
    form.oneField({.displayType = "COMBOBOX"}, "A");
    auto* text = form.control<QComboBox>("cboNip(0)")->lineEdit();
    text->selectAll();
    QTest::keyClicks(text, "b");
    QTest::keyClick(text, Qt::Key_Return);
    form.after.setFocus();
    EXPECT_EQ(form.saved(), "b") << "not the item B";
    EXPECT_GT(form.edits, 0);
}

TEST(ComboEntry, TakesOnlyItemsWhereItIsRestrictedAndLetsAnAnswerBeTakenBack) {
    NipForm form;
    form.oneField({.displayType = "COMBOBOX-RESTRICTED"}, "gone");
    auto* combo = form.control<QComboBox>("cboNip(0)");
    EXPECT_FALSE(combo->isEditable());
    QTest::keyClicks(combo, "b");
    EXPECT_EQ(form.saved(), "B");
    EXPECT_GE(combo->findText("gone"), 0) << "until the form is filled again";
    QTest::keyClick(combo, Qt::Key_Home);
    EXPECT_EQ(form.saved(), "");
}

TEST(ComboEntry, SavesAnAnswerThatWasChangedBackAfterASave) {
    NipForm form;
    form.oneField({.displayType = "COMBOBOX-RESTRICTED"}, "A");
    auto* combo = form.control<QComboBox>("cboNip(0)");
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(form.saved(), "B");
    QTest::keyClick(combo, Qt::Key_Up);
    EXPECT_EQ(form.saved(), "A");
}

TEST(ComboEntry, LeavesTheWheelToThePage) {
    NipForm form;
    form.oneField({.displayType = "COMBOBOX-RESTRICTED"}, "A");
    auto* combo = form.control<QComboBox>("cboNip(0)");
    for (const bool focused : {false, true}) {
        (focused ? static_cast<QWidget*>(combo) : &form.before)->setFocus();
        QWheelEvent wheel({5, 5}, combo->mapToGlobal(QPoint(5, 5)), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(combo, &wheel);
        EXPECT_EQ(combo->currentText(), "A");
        EXPECT_EQ(combo->hasFocus(), focused);
    }
}

} // namespace Korvane
