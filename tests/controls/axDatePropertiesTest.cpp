#include "support/DateForm.h"

namespace Korvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(axDateProperties, ComeBackFromTheBagButTheBounds) {
    axDate saved;
    saved.wholeDate("unknown");
    saved.DragonSpeechEnabled(true);
    saved.Enlivened(false);
    saved.NextFieldCommand("Onward");
    saved.PreviousFieldCommand("Back");
    saved.MinimumDate("1/1/1900");
    saved.MaximumDate("1/1/2100");
    saved.CriticalValidation(true);
    PropertyBag bag;
    saved.WriteProperties(bag);
    EXPECT_THAT(bag.values().keys(), ElementsAre("DragonSpeechEnabled", "Enlivened", "NextFieldCommand",
                                                 "PreviousFieldCommand", "axDate"));
    axDate read;
    read.ReadProperties(bag);
    EXPECT_EQ(read.wholeDate(), "unknown");
    EXPECT_TRUE(read.DragonSpeechEnabled());
    EXPECT_FALSE(read.Enlivened());
    EXPECT_FALSE(read.findChild<QLineEdit*>("txtWholeDate")->isEnabled());
    EXPECT_EQ(read.NextFieldCommand(), "Onward");
    EXPECT_EQ(read.PreviousFieldCommand(), "Back");
    EXPECT_EQ(read.MinimumDate() + read.MaximumDate(), "");
    EXPECT_FALSE(read.CriticalValidation());
}

TEST(axDateProperties, OfANewInstanceAreThoseOfAnEmptyBag) {
    axDate made, read;
    made.InitProperties();
    read.ReadProperties(PropertyBag());
    PropertyBag bag;
    made.WriteProperties(bag);
    EXPECT_THAT(bag.values(), IsEmpty());
    for (const axDate* each : {&made, &read}) {
        EXPECT_TRUE(each->Enlivened());
        EXPECT_FALSE(each->DragonSpeechEnabled());
        EXPECT_EQ(each->NextFieldCommand(), "Next Field");
        EXPECT_EQ(each->PreviousFieldCommand(), "Previous Field");
        EXPECT_TRUE(each->FourDigitYearError());
    }
}

TEST(axDateProperties, EverySetterMarksItsOwnAndTheWholeDateRaisesItsEventOnce) {
    axDate date;
    QStringList marked;
    int changes = 0;
    QObject::connect(&date, &axDate::PropertyChanged, [&](const QString& name) { marked << name; });
    QObject::connect(&date, &axDate::OnChange, [&] { ++changes; });
    date.wholeDate("not checked");
    EXPECT_EQ(date.property("axDate"), "not checked");
    EXPECT_EQ(changes, 1);
    const QStringList texts{"MaximumDate",      "MinimumDate",         "day", "month", "year", "axDate",
                            "NextFieldCommand", "PreviousFieldCommand"};
    const QStringList flags{"DragonSpeechEnabled", "CriticalValidation", "Enlivened"};
    marked.clear();
    for (const QString& name : texts)
        EXPECT_TRUE(date.setProperty(name.toUtf8(), "1"));
    for (const QString& name : flags)
        EXPECT_TRUE(date.setProperty(name.toUtf8(), true));
    EXPECT_EQ(marked, texts + flags);
}

TEST(axDateProperties, PartsAreWrittenUncheckedAndComposeTheWholeDate) {
    axDate date;
    date.wholeDate("1/1/2000");
    date.month("4");
    date.day("31");
    date.year("2001");
    EXPECT_EQ(date.wholeDate(), "1/1/2000") << "there is no such day";
    date.day("30");
    EXPECT_EQ(date.wholeDate(), "4/30/2001");
    date.month("13");
    EXPECT_EQ(date.wholeDate(), "");
    date.month("x");
    EXPECT_EQ(date.month(), "x");
    date.year("123");
    EXPECT_TRUE(date.FourDigitYearError());
    date.month("4");
    date.year("2001");
    EXPECT_FALSE(date.FourDigitYearError());
    date.day("31");
    date.showDate();
    EXPECT_EQ(date.wholeDate(), "") << "showing keeps no date before";
}

TEST(axDateProperties, ABoundIsInside) {
    axDate date;
    date.wholeDate("5/2/2001");
    EXPECT_EQ(date.ValidateMinMax(), 0);
    date.MaximumDate("5/2/2001");
    EXPECT_EQ(date.ValidateMinMax(), 0);
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
    bag.WriteProperty("axDate", "3/4/2025", "");
    bag.WriteProperty("Enlivened", "perhaps", "True");
    form.date->ReadProperties(bag);
    EXPECT_THAT(form.user->boxes, ElementsAre(ShownBox{" Error in axDate.txtDate.EnterFocus: Type mismatch",
                                                       MsgBoxStyle::OkOnly, ""},
                                              ShownBox{" Error in UserControl.ReadProperties: Type mismatch",
                                                       MsgBoxStyle::OkOnly, ""}));
    EXPECT_EQ(form.wholeDate(), "3/4/2025");
}

} // namespace Korvane
