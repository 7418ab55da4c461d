#include <korvane/controls/container/SendKeys.h>

#include "support/DateForm.h"
#include "support/InFront.h"

namespace Korvane {

using namespace Testing;

TEST(SendKeys, GoToWhatHasTheFocusWhenTheirTurnComes) {
    DateForm form;
    sendKeys("a{tab}{TAB}{TAB}{TAB}z}");
    EXPECT_EQ(form.before->text(), "") << "not before the event in hand is done with";
    QCoreApplication::processEvents();
    EXPECT_EQ(form.before->text(), "a");
    EXPECT_EQ(form.after->text(), "z}");
    sendKeys("more");
    discardSentKeys();
    sendKeys("!");
    QCoreApplication::processEvents();
    EXPECT_EQ(form.after->text(), "z}!");
}

TEST(SendKeys, AreForTheWindowInFrontAndNoOther) {
    DateForm other, form;
    QObject::connect(form.before, &QLineEdit::textEdited, [&] { Testing::bringToFront(other.form); });
    sendKeys("ab");
    QCoreApplication::processEvents();
    EXPECT_EQ(form.before->text(), "a");
    EXPECT_EQ(other.before->text(), "");
}

} // namespace Korvane
