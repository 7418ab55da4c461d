#include "dateform/TestForm.h"

#include "support/RecordingInteraction.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QTest>

#include <gmock/gmock.h>

namespace DateForm {

using namespace Korvane::Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct OpenForm : TestForm {
    RecordedInteraction user;

    OpenForm() {
        show();
        activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
    }
    template <typename T>
    T& part(const char* name) {
        return *findChild<T*>(QString(name));
    }
    /// Digits, and \t for the Tab key, for whatever has the focus.
    void press(const char* keys) {
        for (; *keys; ++keys)
            QTest::keyClick(QApplication::focusWidget(), *keys == '\t' ? Qt::Key_Tab : Qt::Key(*keys));
        QCoreApplication::processEvents();
    }
    std::vector<std::string> events() {
        std::vector<std::string> texts;
        const auto& list = part<QTreeWidget>("lstEvents");
        for (int i = 0; i < list.topLevelItemCount(); ++i)
            texts.push_back(
                (list.topLevelItem(i)->text(0) + ' ' + list.topLevelItem(i)->text(1)).toStdString());
        return texts;
    }
};

} // namespace

TEST(TestForm, SendsTheUserBackToADateOutsideItsBounds) {
    OpenForm form;
    form.part<QLineEdit>("txtMinimum").setText("1/1/1900");
    form.part<QLineEdit>("txtMaximum").setText("11/15/2026");
    struct Case {
        const char* keys;
        std::vector<ShownBox> boxes;
        const char* focus;
    };
    constexpr int icon = Korvane::MsgBoxStyle::Information;
    for (const Case& c :
         {Case{
              "\t11162026\t", {{"The date must not be after 11/15/2026.", icon, "Date Error"}}, "txtDate(0)"},
          Case{"12311899\t", {{"The date must not be before 1/1/1900.", icon, "Date Error"}}, "txtDate(0)"},
          Case{"11152026\t", {}, "txtAfter"}}) {
        SCOPED_TRACE(c.keys);
        form.press(c.keys);
        EXPECT_EQ(form.user->boxes, c.boxes);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), c.focus);
        form.user->clear();
    }
}

TEST(TestForm, ListsEventsAndShowsWhatWasRefusedUntilItIsMended) {
    OpenForm form;
    auto& refusal = form.part<QLabel>("lblRefusal");
    form.press("\t2\t");
    form.part<QLineEdit>("txtDate(1)").setText("32");
    form.press("\t");
    EXPECT_EQ(refusal.text(), "Invalid date format. Please re-enter.");
    form.press("8");
    EXPECT_EQ(refusal.text(), "");
    EXPECT_THAT(form.events(),
                ElementsAre("OnIndexChange 0", "OnChange axDate = \"\"", "OnIndexChange 1",
                            "OnChange axDate = \"\"", "Exception Invalid date format. Please re-enter.",
                            "OnChange axDate = \"\""));
    QTest::mouseClick(form.findChild<QWidget*>("cmdClear"), Qt::LeftButton);
    EXPECT_THAT(form.events(), IsEmpty());
}

TEST(TestForm, SwitchesTheDateControl) {
    OpenForm form;
    auto& date = form.part<Korvane::axDate>("axDate");
    form.press("\t1226\t");
    EXPECT_EQ(date.wholeDate(), "");
    form.part<QCheckBox>("chkFourDigits").click();
    form.press("\t1226\t");
    form.part<QCheckBox>("chkEnlivened").click();
    EXPECT_FALSE(date.Enlivened());
}

} // namespace DateForm
