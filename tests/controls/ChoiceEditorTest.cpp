#include "support/InFront.h"
#include "support/RecordingInteraction.h"

#include <korvane/controls/nippanel/ChoiceEditor.h>
#include <korvane/controls/nippanel/ChoiceOrderList.h>

#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPushButton>
#include <QtTest>

#include <gtest/gtest.h>

namespace Korvane {

using namespace Testing;

namespace {

/// "A [B] C": the choices, the default in brackets.
std::string shown(const ChoiceEditor& editor) {
    QStringList choices = editor.choices();
    const int byDefault = editor.selected();
    if (byDefault >= 0) choices[byDefault] = '[' + choices[byDefault] + ']';
    return choices.join(' ').toStdString();
}

/// An editor of "A [B] C D" in an active window, the focus on its list.
struct Editing {
    RecordedInteraction user;
    ChoiceEditor editor;
    int edits = 0;

    Editing() {
        editor.show({"A", "B", "C", "D"}, 1);
        QObject::connect(&editor, &ChoiceEditor::edited, &editor, [this] { ++edits; });
        editor.resize(300, 250);
        Testing::bringToFront(editor);
        list().setFocus();
    }

    ChoiceOrderList& list() {
        return *static_cast<ChoiceOrderList*>(editor.findChild<QListView*>("lstNipChoices"));
    }
    QLineEdit* box() {
        for (auto* box : list().findChildren<QLineEdit*>("txtNipChoice"))
            if (box->isVisible()) return box;
        return nullptr;
    }
    QPoint at(int row) { return list().visualRect(list().model()->index(row, 0)).center(); }
    void choose(int row) { QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, at(row)); }
    void press(int button) {
        QTest::mouseClick(editor.findChild<QPushButton*>(QString("cmdNipChoices(%1)").arg(button)),
                          Qt::LeftButton);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers with = {}) { QTest::keyClick(&list(), key, with); }
    int rows() { return list().model()->rowCount(); }
    void retype(const char* text) {
        key(Qt::Key_F2);
        ASSERT_TRUE(box());
        box()->setText(text);
        QTest::keyClick(box(), Qt::Key_Return);
        QCoreApplication::processEvents();
    }
};

/// Drags a choice over the list, by the events that the window system would send to it.
void drag(Editing& e, int from, int to, Qt::KeyboardModifiers keys = {},
          const std::function<void()>& meanwhile = nullptr) {
    QMimeData data;
    data.setData("application/x-korvane-choice", "text");
    e.list().beginDrag(e.list().model()->index(from, 0));
    EXPECT_EQ(e.rows(), 5) << "a place behind the last";
    EXPECT_EQ(e.editor.choices().size(), 4) << "which is no choice";
    const Qt::DropActions both = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(e.at(from), both, &data, Qt::LeftButton, keys);
    QCoreApplication::sendEvent(e.list().viewport(), &enter);
    if (meanwhile) meanwhile();
    QDropEvent drop(e.at(to), both, &data, {}, keys);
    QCoreApplication::sendEvent(e.list().viewport(), &drop);
    e.list().endDrag();
}

} // namespace

TEST(ChoiceEditor, AddsWhatAListCanHold) {
    for (const auto& [answer, expected, refused] : {std::tuple{"  E F ", "A [B] C D E F", 0U},
                                                    {" \t ", "A [B] C D", 0U},
                                                    {"E|F", "A [B] C D", 1U},
                                                    {" b ", "A [B] C D", 1U},
                                                    {"E\r\nF", "A [B] C D E F", 0U}}) {
        SCOPED_TRACE(answer);
        Editing e;
        e.user->texts = {answer};
        e.press(0);
        EXPECT_EQ(e.user->inputs, std::vector{(ShownInput{"What is the new item?", ""})});
        EXPECT_EQ(shown(e.editor), expected);
        EXPECT_EQ(e.user->boxes.size(), refused);
        EXPECT_EQ(e.edits, e.editor.choices().size() - 4);
    }
}

TEST(ChoiceEditor, PutsADraggedChoiceBeforeTheMarkAndLosesNone) {
    for (const auto& [from, to, expected] : {std::tuple{0, 2, "[B] A C D"},
                                             {3, 0, "D A [B] C"},
                                             {1, 4, "A C D [B]"},
                                             {1, 1, "A [B] C D"},
                                             {1, 2, "A [B] C D"}}) {
        Editing e;
        drag(e, from, to);
        EXPECT_EQ(shown(e.editor), expected);
        EXPECT_EQ(e.rows(), 4);
        EXPECT_EQ(e.edits, shown(e.editor) == "A [B] C D" ? 0 : 1);
    }
}

TEST(ChoiceEditor, TakesNothingForAFieldThatIsNoLongerShown) {
    Editing e;
    const auto showAnother = [&] { e.editor.show({"X", "Y"}, -1); };
    drag(e, 0, 1, {}, showAnother);
    EXPECT_EQ(shown(e.editor), "X Y");
    e.user->texts = {"late"};
    e.user->whenShown = showAnother;
    e.press(0);
    EXPECT_EQ(shown(e.editor), "X Y");
    e.key(Qt::Key_F2);
    e.box()->setText("A|B");
    showAnother();
    EXPECT_TRUE(e.editor.takeEdit()) << "the edit ended with what it was of";
    EXPECT_EQ(shown(e.editor), "X Y");
    EXPECT_EQ(e.edits, 0);
}

TEST(ChoiceEditor, LetsACopyWaitForATextOfItsOwn) {
    for (const QString text : {"", "B", "B2"}) {
        Editing e;
        drag(e, 1, 0, Qt::ControlModifier);
        ASSERT_TRUE(e.box());
        EXPECT_EQ(e.box()->text(), "B");
        EXPECT_EQ(shown(e.editor), "A [B] C D") << "it is none yet";
        e.box()->setText(text);
        const bool differs = text == "B2";
        EXPECT_EQ(e.editor.takeEdit(), differs);
        EXPECT_EQ(e.user->boxes.size(), differs ? 0u : 1u);
        if (e.box()) QTest::keyClick(e.box(), Qt::Key_Escape);
        EXPECT_EQ(shown(e.editor), differs ? "B2 A [B] C D" : "A [B] C D");
        EXPECT_EQ(e.edits, differs ? 1 : 0);
        EXPECT_EQ(e.rows(), differs ? 5 : 4);
    }
}

TEST(ChoiceEditor, IsWorkedByKeysAndButtons) {
    Editing e;
    const auto key = [&](Qt::Key k, Qt::KeyboardModifiers with = {}) { return [=, &e] { e.key(k, with); }; };
    const auto button = [&](int number) { return [=, &e] { e.press(number); }; };
    const auto alt = Qt::AltModifier;
    const std::tuple<std::function<void()>, const char*, int> steps[] = {
        {key(Qt::Key_Home), "A [B] C D", 0},
        {key(Qt::Key_Up, alt), "A [B] C D", 0}, // it is the first
        {key(Qt::Key_Down, alt), "[B] A C D", 1},
        {key(Qt::Key_Down, alt), "[B] C A D", 2},
        {key(Qt::Key_Space), "B C [A] D", 3}, // one default at most
        {key(Qt::Key_Space), "B C A D", 4},   // and none again
        {key(Qt::Key_Delete), "B C D", 5},
        {button(1), "B C", 6}, // the next one is the current one then
        {button(2), "C B", 7},
        {button(3), "B C", 8},
        {button(1), "B", 9},
        {button(1), "", 10},
        {key(Qt::Key_Delete), "", 10},
    };
    for (const auto& [act, expected, edits] : steps) {
        act();
        EXPECT_EQ(shown(e.editor), expected);
        EXPECT_EQ(e.edits, edits) << expected;
    }
    EXPECT_TRUE(e.list().hasFocus()) << "not on a button that is no longer enabled";
}

TEST(ChoiceEditor, EditsAChoiceInPlace) {
    Editing e;
    const QStringList stored{"A", "B ", "b", "x\ny"};
    e.editor.show(stored, 1);
    e.choose(1);
    e.retype("B ");
    e.choose(3);
    e.key(Qt::Key_F2);
    QTest::keyClick(e.box(), Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(e.editor.choices(), stored);
    EXPECT_EQ(e.edits, 0);
    e.choose(1);
    e.retype(" Best ");
    EXPECT_EQ(e.editor.choices(), (QStringList{"A", "Best", "b", "x\ny"}));
    EXPECT_EQ(e.editor.selected(), 1);
    EXPECT_EQ(e.edits, 1);
    e.key(Qt::Key_F2);
    e.box()->setText("Better");
    e.press(3);
    EXPECT_EQ(e.editor.choices(), (QStringList{"A", "b", "Better", "x\ny"})) << "taken before the move";
}

TEST(ChoiceEditor, KeepsARefusedTextInItsBox) {
    Editing e;
    e.user->whenShown = [&e] { e.list().setFocus(); };
    for (const char* refused : {"", "a", "A|B"}) {
        SCOPED_TRACE(refused);
        e.user->clear();
        e.choose(1);
        e.retype(refused);
        EXPECT_EQ(e.user->boxes.size(), 1u);
        e.choose(0);
        EXPECT_FALSE(e.editor.takeEdit());
        ASSERT_TRUE(e.box());
        EXPECT_TRUE(e.box()->hasFocus()) << "in the box that is open";
        EXPECT_EQ(e.box()->text(), refused);
        QTest::keyClick(e.box(), Qt::Key_Escape);
        EXPECT_TRUE(e.editor.takeEdit());
    }
    EXPECT_EQ(shown(e.editor), "A [B] C D");
}

} // namespace Korvane
