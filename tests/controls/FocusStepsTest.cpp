#include "support/DateForm.h"
#include "support/InFront.h"

#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

namespace Korvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const char* const invalid = "Invalid date format. Please re-enter.";

} // namespace

TEST(FocusSteps, ARefusalMayBeTold) {
    DateForm form("1/2/2026");
    int pressed = 0, told = 0;
    form.help->setProperty("CausesValidation", true);
    QObject::connect(form.help, &QPushButton::pressed, [&] { ++pressed; });
    QObject::connect(form.date, &axDate::Exception, [&](const QString& text) {
        QMessageBox box(QMessageBox::Warning, "", text, QMessageBox::Ok, &form.form);
        QTimer::singleShot(80, [&] { QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton); });
        EXPECT_EQ(box.exec(), QMessageBox::Ok);
        ++told;
    });
    form.press("\t13");
    form.take();
    for (int i = 1; i <= 2; ++i) {
        QTest::mouseClick(form.help, Qt::LeftButton);
        form.form.activateWindow(); // as a window manager does when a box is closed
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form.form));
        EXPECT_EQ(told, i);
        EXPECT_EQ(pressed, 0);
        EXPECT_EQ(form.focus(), "0");
    }
    EXPECT_THAT(form.take(), ElementsAre(invalid, invalid));
    form.press("12");
    QTest::mouseClick(form.help, Qt::LeftButton);
    EXPECT_EQ(pressed, 1) << "the next press is the user's again";
}

TEST(FocusSteps, ARefusedYearGetsTheFocusBackBehindTheBoxThatToldOfIt) {
    DateForm form("1/2/2026");
    QObject::connect(form.date, &axDate::Exception, [&](const QString& text) {
        QMessageBox box(QMessageBox::Warning, "", text, QMessageBox::Ok, &form.form);
        QTimer::singleShot(0, &box, &QDialog::accept);
        box.exec();
    });
    form.press("\t\t\t202");
    form.take();
    QTest::mouseClick(form.help, Qt::LeftButton);
    Testing::bringToFront(form.form);
    EXPECT_EQ(form.focus(), "2");
    EXPECT_THAT(form.take(), ElementsAre("Year requires four digits. Please re-enter.", "index 2"));
}

TEST(FocusSteps, ARefusalIsToldOnceThoughItsHearerWantsTheFocusElsewhere) {
    DateForm form("1/2/2026");
    QObject::connect(form.date, &axDate::Exception, form.after, [&] { form.after->setFocus(); });
    form.press("\t13");
    form.take();
    form.press("\t");
    EXPECT_EQ(form.focus(), "0");
    EXPECT_THAT(form.take(), ElementsAre(invalid));
}

TEST(FocusSteps, TheMenuBarIsNoLeaving) {
    DateForm form("1/2/2026");
    QMenuBar menus(&form.form);
    menus.addMenu("&File")->addAction("&Open");
    menus.show();
    form.press("\t13");
    form.take();
    QTest::keyPress(&form.box(0), Qt::Key_Alt, Qt::AltModifier);
    QTest::keyRelease(&form.box(0), Qt::Key_Alt);
    ASSERT_TRUE(menus.hasFocus());
    QTest::keyClick(&menus, Qt::Key_Escape);
    EXPECT_EQ(form.focus(), "0");
    EXPECT_EQ(form.box(0).selectedText(), "13");
    EXPECT_THAT(form.take(), IsEmpty());
}

TEST(FocusSteps, WhatIsHiddenOrDisabledHoldsNobodyUp) {
    for (const bool hides : {true, false}) {
        DateForm form("1/2/2026");
        form.press("\t13");
        form.take();
        hides ? form.date->hide() : form.date->setEnabled(false);
        EXPECT_FALSE(form.date->isAncestorOf(QApplication::focusWidget()));
        EXPECT_EQ(form.take().back(), "exitfocus");
    }
}

TEST(FocusSteps, TheFocusMayBeMovedBehindAnotherWindow) {
    DateForm form("1/2/2026");
    form.press("\t");
    form.take();
    QWidget other;
    Testing::bringToFront(other);
    form.after->setFocus();
    EXPECT_THAT(form.take(), IsEmpty());
    Testing::bringToFront(form.form);
    EXPECT_THAT(form.take(), ElementsAre("exitfocus"));
    EXPECT_TRUE(form.whole().isVisible());
}

TEST(FocusSteps, TheControlMayGoWhileItHasTheFocus) {
    DateForm form("1/2/2026");
    form.press("\t");
    delete form.date;
    EXPECT_EQ(QApplication::focusWidget(), nullptr);

    DateForm another("1/2/2026");
    const QPointer<axDate> date = another.date;
    QObject::connect(date, &axDate::SystemMessage, [&] { delete another.date; });
    another.press("\t\t\t\t");
    EXPECT_FALSE(date);
    EXPECT_EQ(QApplication::focusWidget(), another.after);
}

} // namespace Korvane
