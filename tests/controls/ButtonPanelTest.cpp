#include "support/ButtonForm.h"

#include <korvane/controls/buttons/funcPanel.h>
#include <korvane/controls/buttons/movebtn.h>

#include <QDialog>
#include <QPushButton>

namespace Korvane {

using namespace Testing;

TEST(ButtonPanel, TabEntersAtTheButtonLastUsedAndLeaves) {
    ButtonForm<movebtn> form;
    EXPECT_EQ(form.press(Qt::Key_Tab), 0);
    EXPECT_EQ(form.press(Qt::Key_Tab), 9);
    EXPECT_EQ(form.press(Qt::Key_Backtab, Qt::ShiftModifier), 0);
    EXPECT_EQ(form.press(Qt::Key_Right), 1);
    EXPECT_EQ(form.press(Qt::Key_Backtab, Qt::ShiftModifier), -1);
    EXPECT_EQ(form.press(Qt::Key_Tab), 1);
    QTest::mouseClick(&form.button(2), Qt::LeftButton);
    form.before->setFocus();
    form.panel->setFocus();
    EXPECT_EQ(form.focus(), 2);
    form.panel->Focus(3);
    EXPECT_EQ(form.press(Qt::Key_Tab), 9);
    form.panel->Focus(2);
    for (const bool on : {false, true})
        form.panel->Enabled(on); // while the form is at work
    form.panel->setFocus();
    EXPECT_EQ(form.focus(), 2);
    form.panel->Focus(3);
    QWidget::setTabOrder(form.after, form.panel);
    form.after->setFocus();
    EXPECT_EQ(form.press(Qt::Key_Tab), 3) << "in the order that the host gave";
    EXPECT_THROW(form.panel->Focus(4), RuntimeError);
}

TEST(ButtonPanel, ArrowKeysMoveInTheRowAndStopAtItsEnds) {
    ButtonForm<funcPanel> form;
    form.panel->btnDisable(1);
    form.panel->Focus(0);
    EXPECT_EQ(form.press(Qt::Key_Up), 0);
    EXPECT_EQ(form.press(Qt::Key_Down), 2) << "past the disabled one";
    EXPECT_EQ(form.press(Qt::Key_Left), 0);
    EXPECT_EQ(form.press(Qt::Key_End), 4);
    EXPECT_EQ(form.press(Qt::Key_Right), 4);
    EXPECT_EQ(form.press(Qt::Key_Up, Qt::ControlModifier), 4) << "not a key of the row";
    EXPECT_EQ(form.press(Qt::Key_Home), 0);
    form.form.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(form.press(Qt::Key_Left), 2);
    EXPECT_EQ(form.press(Qt::Key_Right), 0);
}

TEST(ButtonPanel, EachClickIsHeardOnceButNoneInDesignMode) {
    ButtonForm<funcPanel> form;
    form.panel->btnText5("&Sign");
    for (const bool designed : {false, true}) {
        form.panel->setDesignMode(designed);
        QTest::mouseClick(&form.button(2), Qt::LeftButton);
        form.press(Qt::Key_Space);
        form.panel->Focus(1);
        form.press(Qt::Key_Return);
        form.press(Qt::Key_S, Qt::AltModifier);
        QTest::simulateEvent(&form.button(4), true, Qt::Key_S, Qt::AltModifier, "s", true);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
        QCoreApplication::sendEvent(&form.button(4), &held);
        EXPECT_EQ(form.heard(), designed ? Clicks{} : (Clicks{2, 2, 1, 4}));
    }
    EXPECT_EQ(form.focus(), 4) << "the accelerator has moved it";
}

TEST(ButtonPanel, AnEnterThatIsHeldDownAnswersNoQuestionThatTheClickBringsUp) {
    ButtonForm<funcPanel> form;
    QDialog question;
    QPushButton yes("Yes", &question);
    int answers = 0;
    QObject::connect(&yes, &QPushButton::clicked, [&answers] { ++answers; });
    QObject::connect(form.panel, &funcPanel::btnClick, [&] {
        bringToFront(question);
        yes.setFocus();
    });
    const auto send = [](QWidget& to, QEvent::Type type, bool repeats) {
        QKeyEvent key(type, Qt::Key_Return, Qt::NoModifier, {}, repeats);
        QCoreApplication::sendEvent(&to, &key);
    };
    form.panel->Focus(0);
    send(form.button(0), QEvent::KeyPress, false);
    QTest::keyRelease(&yes, Qt::Key_Shift);
    for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress})
        send(yes, type, true);
    EXPECT_EQ(answers, 0);
    send(yes, QEvent::KeyRelease, false);
    send(yes, QEvent::KeyPress, false);
    EXPECT_EQ(answers, 1);
}

TEST(ButtonPanel, KeepsTheFocusWhileAnyOfItsButtonsCanHaveIt) {
    ButtonForm<funcPanel> form;
    form.panel->Focus(4);
    form.panel->btnDisable(4);
    EXPECT_EQ(form.focus(), 3);
    form.panel->buttonCount(2);
    QCoreApplication::processEvents();
    EXPECT_EQ(form.focus(), 1);
    form.panel->Focus(3);
    form.panel->buttonCount(4);
    EXPECT_EQ(form.focus(), 1) << "not to the one that was hidden when it was asked for";
    form.panel->Enabled(false);
    EXPECT_EQ(form.focus(), 9);
    EXPECT_EQ(form.press(Qt::Key_Backtab, Qt::ShiftModifier), -1);
}

} // namespace Korvane
