#include "support/NipForm.h"

#include <QClipboard>
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
        NipForm form;
        form.oneField({.maxLength = 5}, utf8(c.loaded));
        auto* box = form.control<QLineEdit>("txtNip(0)");
        box->setSelection(c.from, c.to - c.from);
        QApplication::clipboard()->setText(c.pasted);
        box->paste();
        EXPECT_EQ(form.saved(), utf8(c.left)) << c.about;
    }
}

} // namespace Korvane
