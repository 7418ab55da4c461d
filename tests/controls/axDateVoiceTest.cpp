#include "support/DateForm.h"
#include "support/FakeSpeech.h"
#include "support/InFront.h"

#include <korvane/controls/axdate/PlaceDictated.h>

#include <QDialog>
#include <QMenu>

#include <functional>

namespace Korvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A form whose date control listens, with the focus in the month's box.
struct Listening {
    FakeSpeech speech;
    DateForm form;

    explicit Listening(const QString& wholeDate = {}) : form(wholeDate) {
        QObject::connect(form.date, &axDate::Dictated,
                         [this](const QString& words) { dictated.push_back(utf8(words)); });
        form.read("DragonSpeechEnabled", true);
        form.press("\t");
        form.take();
        speech.take();
    }
    Heard dictated;

    /// A command and a value: what changed, or was told.
    Heard sayBoth() {
        speech.command(1);
        speech.dictate("may");
        Heard all = form.take();
        for (std::string& words : std::exchange(dictated, {}))
            all.push_back(std::move(words));
        return all;
    }
};

} // namespace

TEST(axDateVoice, BuildsItsMenuWhenItsPropertiesAreReadAndListensWhereItHasTheFocus) {
    FakeSpeech speech;
    DateForm form;
    form.date->PreviousFieldCommand("Back");
    form.date->DragonSpeechEnabled(true);
    EXPECT_THAT(speech.take(), IsEmpty());
    form.read("NextFieldCommand", "Onward");
    const std::vector<std::string> built{"VCmd.MenuCreate AxDate Control Function Menu 1033 \"\" 1",
                                         "Add 1 Onward Navigation Moves to next field in date control.",
                                         "Add 2 Back Navigation Moves to previous field in date control.",
                                         "Attach A", "Activate true"};
    EXPECT_EQ(speech.take(), built);
    form.press("\t\t");
    EXPECT_THAT(speech.take(), ElementsAre("A has the focus", "deDate.Awaited Month", "deDate.Activate true",
                                           "deDate.Awaited Day"));
    form.date->DragonSpeechEnabled(false);
    EXPECT_THAT(speech.take(), ElementsAre("A lost the focus", "Activate false", "deDate.Activate false"));
    form.press("\t");
    form.date->DragonSpeechEnabled(true);
    EXPECT_THAT(speech.take(), ElementsAre("A has the focus", "Activate true", "deDate.Awaited Year",
                                           "deDate.Activate true"));
    form.press("\t");
    EXPECT_THAT(speech.take(), ElementsAre("deDate.Activate false", "A lost the focus"));
}

TEST(axDateVoice, ReadiesTheEngineWhereItIsMadeWithItsVoiceOn) {
    FakeSpeech speech;
    const axDate date(nullptr, true);
    EXPECT_THAT(speech.take(), ElementsAre("VCmd.Initialize \"\" 1", "DgnMicBtn1.SetUp 1", "deDate.Register",
                                           "deDate.Language 1033", "deDate.DateWords true"));
}

TEST(axDateVoice, CommandsGoRoundTheBoxesAndStayWhereOneIsRefused) {
    Listening l("4/5/2026");
    for (const auto& [command, box] : {std::pair{1, 1}, {1, 2}, {1, 0}, {2, 2}, {2, 1}, {7, 0}}) {
        l.speech.command(command);
        EXPECT_EQ(l.form.focus(), std::to_string(box));
        EXPECT_EQ(l.form.box(box).selectedText(), l.form.box(box).text());
        EXPECT_THAT(l.form.take(), ElementsAre("index " + std::to_string(box)));
    }
    l.form.press("13");
    l.form.take();
    l.speech.command(1);
    EXPECT_THAT(l.form.take(), ElementsAre("Invalid date format. Please re-enter."));
    EXPECT_EQ(l.form.focus(), "0");
}

TEST(axDateVoice, WhatWasSaidChangesNothingUnlessABoxHasTheFocusWhenItArrives) {
    Listening l("4/5/2026");
    QDialog box(&l.form.form);
    QMenu menu(&l.form.form);
    box.setModal(true);
    const auto back = [&] { box.hide(), Testing::bringToFront(l.form.form); };
    axDate& date = *l.form.date;
    const std::tuple<const char*, std::function<void()>, std::function<void()>> cases[] = {
        {"the focus is elsewhere", [&] { l.form.after->setFocus(); }, [] {}},
        {"another window is in front", [&] { Testing::bringToFront(box); }, back},
        {"a menu is open", [&] { menu.popup(QPoint()); }, [&] { menu.close(); }},
        {"it is not enlivened", [&] { date.Enlivened(false); }, [&] { date.Enlivened(true); }},
        {"it was switched off", [&] { date.DragonSpeechEnabled(false); },
         [&] { date.DragonSpeechEnabled(true); }}};
    for (const auto& [when, begin, end] : cases) {
        SCOPED_TRACE(when);
        begin();
        l.form.take();
        EXPECT_THAT(l.sayBoth(), IsEmpty());
        EXPECT_EQ(l.form.boxes(), "4|5|2026");
        end();
        l.form.date->SetElementFocus(0);
        l.form.take();
        EXPECT_THAT(l.sayBoth(), ElementsAre("index 1", "may"));
        l.form.date->SetElementFocus(0);
    }
}

TEST(axDateVoice, PlacesWhatIsDictated) {
    const std::string smarch =
        "value \"smarch\" not found. You can say either a numeric or the name of a month.";
    DateForm form;
    form.press("\t");
    for (const auto& [words, boxes, focus] : {std::tuple{"november", "11||", "1"},
                                              {"fifteen", "11|15|", "2"},
                                              {"twenty twenty six", "11|15|2026", "2"},
                                              {" May ", "5|15|2026", "1"},
                                              {"smarch", "5|15|2026", "1"}}) {
        EXPECT_EQ(utf8(placeDictated(*form.date, words)), words == std::string("smarch") ? smarch : "");
        EXPECT_EQ(form.boxes(), boxes) << words;
        EXPECT_EQ(form.focus(), focus) << words;
    }
}

TEST(axDateVoice, MayEndWhileItsWordsAreBeingHeard) {
    Listening l;
    QObject::connect(l.form.date, &axDate::Dictated, [&] {
        l.form.date->deleteLater();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    });
    l.speech.dictate("may");
    EXPECT_THAT(l.dictated, ElementsAre("may"));
    EXPECT_THAT(l.speech.take(), ElementsAre("A lost the focus", "menu ends"));
}

TEST(axDateVoice, WorksByHandAndSaysOnceWhyWhereThereIsNoEngine) {
    static int run = 0;
    const std::string why = "The microphone is in repair for the " + std::to_string(++run) + ". time.";
    const FakeSpeech gone;
    DateForm form;
    form.read("DragonSpeechEnabled", true);
    voice::install(nullptr, why);
    for (int i = 0; i < 2; ++i) {
        form.read("DragonSpeechEnabled", true);
        EXPECT_EQ(form.user->boxes.size(), i == 0 ? 0U : 1U) << "not while it is read";
        QCoreApplication::processEvents();
    }
    EXPECT_THAT(form.user->boxes, ElementsAre(ShownBox{why + " Dates can be entered by hand.",
                                                       MsgBoxStyle::Information, "Voice"}));
    form.press("\t11152026\t");
    EXPECT_EQ(form.wholeDate(), "11/15/2026");
}

} // namespace Korvane
