#include "dateform/TestForm.h"

#include "support/FakeSpeech.h"
#include "support/RecordingInteraction.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

namespace DateForm {

using namespace Korvane::Testing;

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
        for (const QString& each : part<Apps::EventList>("events").heard())
            texts.push_back(each.toStdString());
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

TEST(TestForm, PlacesWhatIsDictatedAndShowsHowTheMicrophoneStands) {
    FakeSpeech speech;
    OpenForm form;
    form.part<QCheckBox>("chkVoice").click();
    EXPECT_EQ(speech.take().back(), "Activate true") << "the menu";
    auto& button = form.part<QPushButton>("cmdMicrophone");
    auto& status = form.part<QLabel>("lblMicrophone");
    auto& heard = form.part<QLabel>("lblHeard");
    speech.noSound = "There is no microphone.";
    button.click();
    EXPECT_EQ(status.text(), "There is no microphone.");
    EXPECT_FALSE(button.isChecked());
    speech.noSound.clear();
    button.click();
    EXPECT_EQ(status.text(), "It is on.");
    form.part<QLineEdit>("txtBefore").setFocus();
    form.press("\t");
    speech.dictate("november");
    EXPECT_EQ(heard.text(), "Heard: november");
    EXPECT_EQ(form.part<Korvane::axDate>("axDate").month(), "11");
    speech.dictate("smarch");
    EXPECT_EQ(heard.text(),
              "value \"smarch\" not found. You can say either a numeric or the name of a month.");
    speech.command(2);
    EXPECT_EQ(form.events().back(), "OnIndexChange 0");
}

} // namespace DateForm
