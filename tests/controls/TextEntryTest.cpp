#include "support/NipForm.h"

#include <QLineEdit>

namespace Korvane {

using Testing::FieldGiven;
using Testing::NipForm;

TEST(TextEntry, KeepsALineBreakInATextThatTheUserAddsTo) {
    NipForm form;
    form.oneField({}, "one\ntwo");
    auto* box = form.control<QLineEdit>("txtNip(0)");
    QTest::keyClick(box, Qt::Key_End);
    QTest::keyClicks(box, "!");
    EXPECT_EQ(form.saved(), "one\ntwo!");
}

TEST(TextEntry, TakesNoMoreThanTheMaxLengthWhereThereIsOne) {
    const std::string longText(40, 'x');
    const struct {
        std::int16_t maxLength;
        std::string saved;
    } cases[] = {{10, "abcxxxxxxx"}, {0, "abc" + longText}};
    for (const auto& c : cases) {
        NipForm form;
        form.oneField({.maxLength = c.maxLength}, "abc");
        auto* box = form.control<QLineEdit>("txtNip(0)");
        QTest::keyClick(box, Qt::Key_End);
        QTest::keyClicks(box, qt(longText));
        EXPECT_EQ(form.saved(), c.saved) << c.maxLength;
    }
}

TEST(TextEntry, ShowsALongerTextWholeAndLetsItOnlyBeShortened) {
    NipForm form;
    form.oneField({.maxLength = 5}, "12345678");
    auto* box = form.control<QLineEdit>("txtNip(0)");
    ASSERT_EQ(box->text(), "12345678");
    const auto press = [box](Qt::Key key) { QTest::keyClick(box, key); };

    press(Qt::Key_End);
    press(Qt::Key_Backspace);
    EXPECT_EQ(box->text(), "1234567") << "still longer, but shorter than it was";
    QTest::keyClicks(box, "x");
    EXPECT_EQ(box->text(), "1234567") << "no longer again, other than by taking a change back";
    QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box->text(), "12345678");

    for (int i = 0; i < 4; ++i)
        press(Qt::Key_Backspace);
    QTest::keyClicks(box, "xyz");
    EXPECT_EQ(form.saved(), "1234x");
    EXPECT_GT(form.edits, 0);
}

} // namespace Korvane
