#include "support/DateForm.h"
#include "support/InFront.h"
#include "support/NothingIsClipped.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMimeData>

namespace Korvane {

using namespace Testing;
using testing::ElementsAre;

namespace {

const char* const invalid = "Invalid date format. Please re-enter.";
const char* const exitText = "exitfocus";

struct Typed {
    const char* keys;
    const char* boxes;
    const char* wholeDate;
    const char* focus;
    Heard heard;
};

void PrintTo(const Typed& typed, std::ostream* out) {
    *out << testing::PrintToString(typed.keys);
}

void check(DateForm& form, const Typed& expected) {
    SCOPED_TRACE(testing::PrintToString(expected));
    form.press(expected.keys);
    EXPECT_EQ(form.boxes(), expected.boxes);
    EXPECT_EQ(form.wholeDate(), expected.wholeDate);
    EXPECT_EQ(form.focus(), expected.focus);
    EXPECT_EQ(form.take(), expected.heard);
}

void paste(const char* text) {
    QApplication::clipboard()->setText(text);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
}

/// What becomes of a text that is moved here from elsewhere; its source deletes it after a MoveAction.
Qt::DropAction drop(QWidget& on, const char* text) {
    QMimeData dragged;
    dragged.setText(text);
    const Qt::DropActions both = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(QPoint(5, 5), both, &dragged, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&on, &enter);
    QDropEvent dropped(QPointF(5, 5), both, &dragged, Qt::LeftButton, Qt::NoModifier);
    dropped.setDropAction(Qt::MoveAction);
    QCoreApplication::sendEvent(&on, &dropped);
    return dropped.isAccepted() ? dropped.dropAction() : Qt::IgnoreAction;
}

void choose(QLineEdit& box, const char* action) {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, box.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&box, &event);
    QWidget* menu = QApplication::activePopupWidget();
    menu->findChild<QAction*>(action)->trigger();
    menu->close();
}

} // namespace

TEST(axDate, TakesADateKeyByKeyAndRaisesEachEventInItsPlace) {
    DateForm form;
    for (const Typed& step :
         {Typed{"\t", "||", "", "0", {"index 0"}}, Typed{"a/-. ", "||", "", "0", {}},
          Typed{"1", "1||", "", "0", {"changed"}}, Typed{"1", "11||", "", "1", {"index 1", "changed"}},
          Typed{"5\t", "11|5|", "", "2", {"changed", "index 2"}},
          Typed{"200", "11|5|200", "", "2", {"changed", "changed", "changed"}},
          Typed{"1", "11|5|2001", "11/5/2001", "2", {"changed"}},
          Typed{"\b", "11|5|200", "", "2", {"changed"}},
          Typed{"1", "11|5|2001", "11/5/2001", "2", {"changed"}}})
        check(form, step);
    EXPECT_FALSE(form.whole().isVisible());
    check(form, {"\t", "11|5|2001", "11/5/2001", "after", {exitText}});
    EXPECT_TRUE(form.whole().isVisible());
    EXPECT_FALSE(form.box(0).isVisible());
}

TEST(axDate, ShowsTheWholeDateInItsBoxesAndSelectsEachOneItComesTo) {
    DateForm form("01/02/2026");
    check(form, {"\t", "1|2|2026", "1/2/2026", "0", {"index 0"}});
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(form.box(i).selectedText(), form.box(i).text());
        EXPECT_EQ(form.box(i).accessibleName(), QStringList({"Month", "Day", "Year"}).at(i));
        form.press("\t");
    }
    EXPECT_THAT(form.take(), ElementsAre("index 1", "index 2", exitText));
    check(form, {"<", "1|2|2026", "1/2/2026", "2", {"index 2"}});
    check(form, {"<<<", "1|2|2026", "1/2/2026", "before", {"index 1", "index 0", exitText}});
    QTest::mouseClick(&form.whole(), Qt::LeftButton);
    EXPECT_EQ(form.focus(), "0");
    const QPoint at(6, 8), beside(12, 8);
    QTest::mousePress(&form.box(2), Qt::LeftButton, {}, at);
    QMouseEvent moved(QEvent::MouseMove, beside, form.box(2).mapToGlobal(beside), Qt::NoButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&form.box(2), &moved);
    QTest::mouseRelease(&form.box(2), Qt::LeftButton, {}, beside);
    EXPECT_EQ(form.box(2).selectedText(), "2026") << "also by a click, be the hand steady or not";
    EXPECT_THAT(form.take(), ElementsAre("index 0", "index 2"));
}

TEST(axDate, EnterLeavesForTheNextControlFromAnyBox) {
    for (const char* way : {"\n", "\t\n", "\t\t\n"}) {
        DateForm form("1/2/2026");
        form.press("\t");
        form.take();
        check(form, {way, "1|2|2026", "1/2/2026", "after", {"index 1", "index 2", exitText}});
    }
}

TEST(axDate, RefusesToLeaveABoxThatCannotBeRight) {
    for (const Typed& wrong :
         {Typed{"13\t", "13|2|2026", "", "0", {"changed", "changed", invalid}},
          Typed{"0\t", "0|2|2026", "", "0", {"changed", invalid}},
          Typed{"13\n", "13|2|2026", "", "0", {"changed", "changed", invalid}},
          Typed{"\t32\t", "1|32|2026", "", "1", {"index 1", "changed", "changed", invalid}},
          Typed{"\t\t26<", "1|2|26", "", "2", {"index 1", "index 2", "changed", "changed", invalid}}}) {
        DateForm form("1/2/2026");
        form.date->setProperty("CausesValidation", false); // on the way to it, not in it
        form.press("\t");
        form.take();
        check(form, wrong);
        EXPECT_EQ(QApplication::focusWidget()->accessibleDescription(), invalid);
    }
}

TEST(axDate, AsksForNoValidationOnTheWayToAControlThatWantsNone) {
    DateForm form("1/2/2026");
    form.press("\t13");
    form.take();
    QTest::mouseClick(form.help, Qt::LeftButton);
    EXPECT_EQ(form.focus(), "help");
    EXPECT_THAT(form.take(), ElementsAre(exitText));
    form.date->setFocus();
    EXPECT_EQ(form.boxes(), "13|2|2026") << "what was refused is still there";
}

TEST(axDate, WidensAYearOfTwoDigitsWhereFourAreNotRequired) {
    DateForm form("1/2/2026");
    form.require4(false);
    form.press("\t\t\t");
    form.take();
    check(form, {"29", "1|2|29", "1/2/29", "2", {"changed", "changed"}});
    check(form, {"\t", "1|2|2029", "1/2/2029", "after", {"changed", exitText}});
    check(form,
          {"<30\t", "1|2|1930", "1/2/1930", "after", {"index 2", "changed", "changed", "changed", exitText}});
}

TEST(axDate, APressThatAskedForTheFocusInVainDoesNothingElse) {
    DateForm form("1/2/2026");
    int saved = 0;
    form.help->setProperty("CausesValidation", true);
    QObject::connect(form.help, &QPushButton::clicked, [&] { ++saved; });
    form.press("\t13");
    QTest::mouseClick(form.help, Qt::LeftButton);
    EXPECT_EQ(saved, 0);
    EXPECT_EQ(form.focus(), "0");
    form.press("12");
    QTest::mouseClick(form.help, Qt::LeftButton);
    EXPECT_EQ(saved, 1);
    EXPECT_EQ(form.wholeDate(), "12/2/2026");
}

TEST(axDate, NeverShowsTheDateOfTheRecordBefore) {
    DateForm form("1/2/2026");
    form.press("\t");
    form.date->wholeDate("");
    EXPECT_EQ(form.boxes(), "||") << "while the boxes are shown";
    form.press("\n");
    EXPECT_EQ(form.wholeDate(), "");
    form.date->wholeDate("5/6/1970");
    form.press("<\n");
    form.date->wholeDate("7/8/1999");
    form.date->SetText("1998");
    EXPECT_EQ(form.wholeDate(), "7/8/1998") << "a spoken part is one of the date that is there";
    form.date->wholeDate("unknown");
    form.take();
    check(form, {"<", "||", "unknown", "2", {"index 2"}});
    check(form, {"\t", "||", "unknown", "after", {exitText}});
    check(form, {"<<<12",
                 "12||",
                 "unknown",
                 "1",
                 {"index 2", "index 1", "index 0", "changed", "index 1", "changed"}});
}

TEST(axDate, MayBeAnsweredWithWhatItHasJustSaid) {
    DateForm form("1/2/2026");
    QString saved;
    QObject::connect(form.date, &axDate::OnChange, [&] {
        if (std::exchange(saved, form.date->wholeDate()) != saved) form.date->wholeDate(saved);
    });
    form.press("\t9\t30");
    form.press("2027");
    EXPECT_EQ(form.wholeDate(), "9/30/2027");
    form.date->wholeDate("9/30/2027");
    EXPECT_EQ(form.box(2).selectedText(), "") << "what the boxes show already leaves the cursor where it is";
}

TEST(axDate, PlacesSpokenTexts) {
    DateForm form;
    form.press("\t");
    for (const char* spoken : {"11", "5", "2026"})
        form.date->SetText(spoken);
    EXPECT_EQ(form.wholeDate(), "11/5/2026");
    EXPECT_EQ(form.box(2).selectedText(), "2026");
    EXPECT_THAT(form.take(), ElementsAre("index 0", "index 1", "changed", "changed", "index 2", "changed"));
    form.date->SetElementFocus(0);
    form.date->SetText("13");
    EXPECT_EQ(form.focus(), "0");
    form.date->SetText("12");
    EXPECT_EQ(form.boxes(), "12|5|2026") << "what was refused is said again";
}

TEST(axDate, FillsAllBoxesFromAWholeDateAndCopiesIt) {
    DateForm form("1/2/2026");
    EXPECT_EQ(drop(form.whole(), "12/31/1999"), Qt::CopyAction);
    EXPECT_EQ(form.wholeDate(), "12/31/1999");
    form.press("\t");
    form.take();
    paste(" 11/15/1984\n");
    EXPECT_EQ(form.boxes(), "11|15|1984");
    EXPECT_THAT(form.take(), ElementsAre("changed", "changed", "changed", "index 2"));
    QTest::keyClick(&form.box(2), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "11/15/1984");
    paste("1985");
    EXPECT_EQ(form.wholeDate(), "11/15/1985") << "digits are for the box in hand";
    EXPECT_EQ(drop(form.box(1), "1/2/1998"), Qt::CopyAction);
    EXPECT_EQ(form.boxes(), "1|2|1998");
    QApplication::clipboard()->setText("2026-11-15 17:21:51");
    choose(form.box(0), "edit-paste");
    EXPECT_EQ(form.wholeDate(), "11/15/2026");
    choose(form.box(0), "edit-copy");
    EXPECT_EQ(QApplication::clipboard()->text(), "11/15/2026");
}

TEST(axDate, WhatIsNotTakenIsLeftWhereItWas) {
    DateForm form("1/2/2026");
    EXPECT_EQ(drop(form.whole(), "Aspirin"), Qt::IgnoreAction);
    form.press("\t");
    for (const char* text : {"Aspirin", " \n", "1\n2", "\u0661\u0661"}) {
        EXPECT_EQ(drop(form.box(1), text), Qt::IgnoreAction);
        paste(text);
        QInputMethodEvent composed;
        composed.setCommitString(text);
        QCoreApplication::sendEvent(&form.box(0), &composed);
        EXPECT_EQ(form.boxes(), "1|2|2026") << text;
    }
    QApplication::clipboard()->setText("kept");
    form.date->day("31");
    form.date->month("2");
    form.box(2).deselect();
    QTest::keyClick(&form.box(2), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "kept") << "there is no date to copy, but the one before";
    form.date->month("x");
    form.box(0).end(false);
    form.press("y/ 1");
    EXPECT_EQ(form.boxes(), "x1|31|2026") << "also behind a text that the host has set";
}

TEST(axDate, ArrowsStepThePartAndMoveBetweenTheBoxes) {
    DateForm form("9/29/2026");
    form.press("\t");
    form.take();
    check(form, {"^", "10|29|2026", "10/29/2026", "0", {"changed"}});
    check(form, {"^^^", "12|29|2026", "12/29/2026", "0", {"changed", "changed"}});
    check(form, {"}", "12|29|2026", "12/29/2026", "1", {"index 1"}});
    check(form, {"^^^", "12|31|2026", "12/31/2026", "1", {"changed", "changed"}});
    check(form, {"{", "12|31|2026", "12/31/2026", "0", {"index 0"}});
    check(form, {"\b{}}", "|31|2026", "12/31/2026", "2", {"changed", "index 1", "index 2"}});
    check(form, {"}\b", "|31|202", "", "2", {"changed"}});
}

TEST(axDate, TheUserGetsInOnlyWhileItIsEnlivened) {
    DateForm form("1/2/2026");
    form.date->Enlivened(false);
    check(form, {"\t", "||", "1/2/2026", "after", {}});
    QTest::mouseClick(&form.whole(), Qt::LeftButton);
    EXPECT_EQ(form.focus(), "after");
    form.press("<");
    form.date->Enlivened(true);
    check(form, {"\t", "1|2|2026", "1/2/2026", "0", {"index 0"}});
}

TEST(axDate, ItsPartsStandInARowThatHoldsTheirTextsAtAnyFontSize) {
    for (const int points : {8, 10, 20, 32}) {
        SCOPED_TRACE(points);
        DateForm form("12/28/2028");
        form.form.setFont(QFont(form.form.font().family(), points));
        form.form.setLayoutDirection(points == 20 ? Qt::RightToLeft : Qt::LeftToRight);
        form.form.resize(form.form.sizeHint());
        form.press("\t");
        expectNothingIsClipped(form.form);
        for (int i = 0; i < 3; ++i) {
            form.box(i).end(false);
            EXPECT_EQ(form.box(i).cursorPositionAt({2, 5}), 0) << "not scrolled";
        }
    }
}

} // namespace Korvane
