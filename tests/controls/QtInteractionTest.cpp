#include <korvane/controls/container/QtInteraction.h>

#include <support/RecordingInteraction.h>

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace Korvane {

namespace {

/// Does something to the next box that opens, while it is open.
template <typename Box>
void onceOpen(std::function<void(Box&)> act) {
    QTimer::singleShot(0, [act = std::move(act)] {
        auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        act(*box);
    });
}

} // namespace

TEST(QtInteraction, AnswersByWhatTheUserPresses) {
    using namespace MsgBoxStyle;
    const std::tuple<int, Qt::Key, Answer> cases[] = {
        {OkOnly, Qt::Key_Escape, Answer::Ok},
        {OkCancel | Question, Qt::Key_Return, Answer::Ok},
        {OkCancel, Qt::Key_Escape, Answer::Cancel},
        {OkCancel | DefaultButton2, Qt::Key_Return, Answer::Cancel},
        {YesNo | Question, Qt::Key_Return, Answer::Yes},
        {YesNo | Question, Qt::Key_Escape, Answer::No},
        {YesNo | DefaultButton2, Qt::Key_Return, Answer::No}};
    for (const auto& [style, key, answer] : cases) {
        SCOPED_TRACE(style);
        onceOpen<QMessageBox>([&, pressed = key](QMessageBox& box) { QTest::keyClick(&box, pressed); });
        EXPECT_EQ(QtInteraction().MsgBox("Go on?", style, ""), answer);
    }
}

TEST(QtInteraction, ShowsTextAsItStandsWithIconTitleAndAnOrdinaryPointer) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    onceOpen<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text(), "<b>5 < 6</b>");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(box.windowTitle(), "Nip");
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        box.reject();
    });
    QtInteraction().MsgBox("<b>5 < 6</b>", MsgBoxStyle::Exclamation, "Nip");
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QGuiApplication::restoreOverrideCursor();
}

TEST(QtInteraction, AsksForALineOfText) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        onceOpen<QInputDialog>([key](QInputDialog& box) {
            EXPECT_EQ(box.findChild<QLabel*>()->text(), "Please enter <Dose>:");
            EXPECT_EQ(box.findChild<QLabel*>()->textFormat(), Qt::PlainText);
            QTest::keyClicks(box.findChild<QLineEdit*>(), "5 mg");
            QTest::keyClick(&box, key);
        });
        const auto answer = QtInteraction().InputBox("Please enter <Dose>:", "");
        EXPECT_EQ(answer, key == Qt::Key_Return ? std::optional<std::string>("5 mg") : std::nullopt);
    }
}

TEST(QtInteraction, IsInstalledOnceAndNeverInPlaceOfTheHostsOwn) {
    const auto before = Interaction::install(nullptr);
    QtInteraction::installOnce();
    const Interaction* first = &Interaction::current();
    EXPECT_NE(dynamic_cast<const QtInteraction*>(first), nullptr);
    QtInteraction::installOnce();
    EXPECT_EQ(&Interaction::current(), first);
    {
        const Testing::RecordedInteraction own;
        QtInteraction::installOnce();
        EXPECT_EQ(&Interaction::current(), &*own);
    }
    Interaction::install(before);
}

} // namespace Korvane
