#include "support/DateForm.h"

namespace Korvane {

using namespace Testing;
using testing::ElementsAre;

TEST(axDateProperties, PartsAreWrittenUncheckedAndComposeTheWholeDate) {
    axDate date;
    int changes = 0;
    QObject::connect(&date, &axDate::OnChange, [&] { ++changes; });
    date.wholeDate("1/1/2000");
    EXPECT_EQ(changes, 1);
    date.month("4");
    date.day("31");
    date.year("2001");
    EXPECT_EQ(date.wholeDate(), "1/1/2000") << "there is no such day";
    date.day("30");
    EXPECT_EQ(date.wholeDate(), "4/30/2001");
    date.month("x");
    EXPECT_EQ(date.month() + date.wholeDate(), "x");
    date.year("123");
    EXPECT_TRUE(date.FourDigitYearError());
    date.month("4");
    date.year("2001");
    EXPECT_FALSE(date.FourDigitYearError());
    date.day("31");
    date.showDate();
    EXPECT_EQ(date.wholeDate(), "") << "showing keeps no date before";
}

TEST(axDateProperties, AreTheBounds) {
    axDate date;
    date.wholeDate("5/2/2001");
    date.MaximumDate("5/1/2001");
    EXPECT_EQ(date.ValidateMinMax(), 1);
    date.MinimumDate("5/3/2001");
    EXPECT_EQ(date.ValidateMinMax(), -1);
}

TEST(axDateProperties, ErrorsAreShownWithTheRoutineTheyHappenedIn) {
    DateForm form("1/2/2026");
    form.require4(false);
    form.date->SetElementFocus(2);
    form.date->year("+5");
    form.press("\t");
    PropertyBag bag;
    const QString date(40000, '3');
    bag.WriteProperty("axDate", date, "");
    bag.WriteProperty("requireFourDigitYear", "perhaps", "True");
    bag.WriteProperty("Enlivened", "False", "True");
    form.date->ReadProperties(bag);
    EXPECT_THAT(form.user->boxes, ElementsAre(ShownBox{" Error in axDate.txtDate.EnterFocus: Type mismatch",
                                                       MsgBoxStyle::OkOnly, ""},
                                              ShownBox{" Error in UserControl.ReadProperties: Type mismatch",
                                                       MsgBoxStyle::OkOnly, ""}));
    EXPECT_EQ(form.date->wholeDate(), date) << "whatever its length";
    EXPECT_FALSE(form.date->Enlivened()) << "what is wrong with one property stops no other";
    EXPECT_TRUE(form.date->FourDigitYearError()) << "its default, and not what it was";
    EXPECT_EQ(bag.problems(), QStringList("requireFourDigitYear holds \"perhaps\": that is no \"True\" or "
                                          "\"False\", True is used"));
}

} // namespace Korvane
