#include "support/RecordingInteraction.h"

#include <korvane/controls/nippanel/ChoiceEditor.h>
#include <korvane/controls/nippanel/ChoiceOrderList.h>

#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
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
        editor.show();
        editor.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&editor));
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
    void retype(const char* text) {
        QTest::keyClick(&list(), Qt::Key_F2);
        ASSERT_TRUE(box());
        box()->setText(text);
        QTest::keyClick(box(), Qt::Key_Return);
        QCoreApplication::processEvents();
    }
};

/// A drag over the list, driven by the events that the window system would send to it.
class Drag {
  public:
    Drag(Editing& editing, int row) : mEditing(editing) {
        mData.setData("application/x-korvane-choice", "text");
        list().beginDrag(list().model()->index(row, 0));
        QDragEnterEvent enter(editing.at(row), both, &mData, Qt::LeftButton, {});
        send(enter);
    }
    ~Drag() { list().endDrag(); }

    Qt::DropAction over(QPoint point, Qt::KeyboardModifiers keys = {}) {
        QDragMoveEvent move(point, both, &mData, Qt::LeftButton, keys);
        send(move);
        return move.isAccepted() ? move.dropAction() : Qt::IgnoreAction;
    }
    void drop(QPoint point, Qt::KeyboardModifiers keys = {}) {
        QDropEvent drop(point, both, &mData, {}, keys);
        send(drop);
    }
    void leave() {
        QDragLeaveEvent leave;
        send(leave);
    }

  private:
    static constexpr Qt::DropActions both = Qt::CopyAction | Qt::MoveAction;
    ChoiceOrderList& list() { return mEditing.list(); }
    void send(QEvent& event) { QCoreApplication::sendEvent(list().viewport(), &event); }

    Editing& mEditing;
    QMimeData mData;
};

QImage picture(ChoiceOrderList& list) {
    QCoreApplication::processEvents();
    return list.viewport()->grab().toImage();
}

} // namespace

TEST(ChoiceEditor, AddsWhatAListCanHold) {
    const struct {
        const char* answer;
        const char* shown;
        bool refused;
    } cases[] = {
        {"E", "A [B] C D E", false},        {"", "A [B] C D", false},   {" \t ", "A [B] C D", false},
        {"  E F ", "A [B] C D E F", false}, {"E|F", "A [B] C D", true}, {" b ", "A [B] C D", true},
        {"E\r\nF", "A [B] C D E F", false},
    };
    for (const auto& c : cases) {
        Editing e;
        e.user->texts = {c.answer};
        e.press(0);
        ASSERT_EQ(e.user->inputs.size(), 1u);
        EXPECT_EQ(e.user->inputs[0], (ShownInput{"What is the new item?", ""}));
        EXPECT_EQ(shown(e.editor), c.shown) << c.answer;
        EXPECT_EQ(e.user->boxes.size(), c.refused ? 1u : 0u) << c.answer;
        EXPECT_EQ(e.edits, shown(e.editor) == "A [B] C D" ? 0 : 1) << c.answer;
    }
}

TEST(ChoiceEditor, PutsADraggedChoiceBeforeTheMark) {
    const struct {
        int from;
        int target; // 4: the empty place behind the last, 5: the room below it
        Qt::DropAction effect;
        const char* shown;
    } cases[] = {
        {0, 2, Qt::MoveAction, "[B] A C D"},   {3, 0, Qt::MoveAction, "D A [B] C"},
        {1, 4, Qt::MoveAction, "A C D [B]"},   {1, 5, Qt::MoveAction, "A C D [B]"},
        {1, 1, Qt::IgnoreAction, "A [B] C D"}, {1, 2, Qt::MoveAction, "A [B] C D"},
    };
    for (const auto& c : cases) {
        Editing e;
        const std::string moved = e.editor.choices().at(c.from).toStdString();
        {
            Drag drag(e, c.from);
            EXPECT_EQ(e.list().model()->rowCount(), 5) << "a place behind the last";
            EXPECT_EQ(shown(e.editor), "A [B] C D") << "which is no choice";
            const QPoint point = c.target < 5 ? e.at(c.target) : e.list().viewport()->rect().bottomLeft();
            EXPECT_EQ(drag.over(point), c.effect) << c.from << " to " << c.target;
            drag.drop(point);
        }
        EXPECT_EQ(shown(e.editor), c.shown) << c.from << " to " << c.target;
        EXPECT_EQ(e.list().model()->rowCount(), 4);
        EXPECT_EQ(e.list().currentIndex().data().toString().toStdString(),
                  c.effect == Qt::MoveAction ? moved : "B")
            << "the one that was moved is the current one";
        EXPECT_EQ(e.edits, shown(e.editor) == "A [B] C D" ? 0 : 1);
    }
}

TEST(ChoiceEditor, LeavesTheListAsItWasAfterADragThatIsGivenUp) {
    Editing e;
    e.choose(0);
    const QImage before = picture(e.list());
    {
        Drag drag(e, 0);
        drag.over(e.at(2));
        EXPECT_NE(picture(e.list()), before) << "a mark shows where it would go";
        drag.leave();
        EXPECT_EQ(drag.over({5, -20}), Qt::IgnoreAction);
        EXPECT_EQ(picture(e.list()), before) << "outside there is none";
        drag.over(e.at(3));
    }
    EXPECT_EQ(picture(e.list()), before);
    Editing other;
    {
        Drag foreign(other, 0);
        QMimeData text;
        text.setText("A");
        QDropEvent drop(e.at(2), Qt::CopyAction, &text, {}, {});
        QCoreApplication::sendEvent(e.list().viewport(), &drop);
        EXPECT_FALSE(drop.isAccepted());
    }
    {
        Drag late(e, 0);
        e.editor.show({"X", "Y"}, -1);
        late.drop(e.at(1));
    }
    EXPECT_EQ(shown(e.editor), "X Y") << "a drag of what is no longer shown";
    EXPECT_EQ(e.edits, 0);
}

TEST(ChoiceEditor, LetsACopyWaitForATextOfItsOwn) {
    for (const char* text : {"", "B", "B2"}) {
        Editing e;
        {
            Drag drag(e, 1);
            EXPECT_EQ(drag.over(e.at(1), Qt::ControlModifier), Qt::CopyAction);
            drag.drop(e.at(0), Qt::ControlModifier);
        }
        ASSERT_TRUE(e.box());
        EXPECT_EQ(e.box()->text(), "B");
        EXPECT_EQ(shown(e.editor), "A [B] C D") << "it is none yet";
        e.box()->setText(text);
        const bool differs = QString(text) == "B2";
        EXPECT_EQ(e.editor.takeEdit(), differs);
        EXPECT_EQ(e.user->boxes.size(), differs ? 0u : 1u);
        if (e.box()) QTest::keyClick(e.box(), Qt::Key_Escape);
        EXPECT_EQ(shown(e.editor), differs ? "B2 A [B] C D" : "A [B] C D");
        EXPECT_EQ(e.edits, differs ? 1 : 0);
        EXPECT_EQ(e.list().model()->rowCount(), differs ? 5 : 4);
    }
}

TEST(ChoiceEditor, ScrollsWhileAChoiceIsHeldAtAnEdge) {
    Editing e;
    QStringList many;
    for (int i = 0; i < 40; ++i)
        many << QString("Choice %1").arg(i);
    e.editor.show(many, -1);
    Drag drag(e, 0);
    QScrollBar* bar = e.list().verticalScrollBar();
    drag.over({20, e.list().viewport()->height() / 2});
    QTest::qWait(200);
    EXPECT_EQ(bar->value(), 0);
    drag.over({20, e.list().viewport()->height() - 2});
    EXPECT_TRUE(QTest::qWaitFor([bar] { return bar->value() == bar->maximum(); }, 10000));
    drag.over({20, 2});
    EXPECT_TRUE(QTest::qWaitFor([bar] { return bar->value() < bar->maximum(); }));
    drag.leave();
    const int left = bar->value();
    QTest::qWait(200);
    EXPECT_EQ(bar->value(), left);
}

TEST(ChoiceEditor, IsWorkedByKeysAndButtons) {
    Editing e;
    const auto key = [&](Qt::Key k, Qt::KeyboardModifiers with = {}) { QTest::keyClick(&e.list(), k, with); };
    key(Qt::Key_Home);
    key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(e.edits, 0) << "it is the first";
    key(Qt::Key_Down, Qt::AltModifier);
    key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(shown(e.editor), "[B] C A D");
    key(Qt::Key_Space);
    EXPECT_EQ(shown(e.editor), "B C [A] D") << "one default at most";
    key(Qt::Key_Space);
    EXPECT_EQ(shown(e.editor), "B C A D") << "and none again";
    EXPECT_EQ(e.edits, 4);
    key(Qt::Key_Delete);
    EXPECT_EQ(shown(e.editor), "B C D");
    e.press(1);
    EXPECT_EQ(shown(e.editor), "B C") << "the next one is the current one then";
    e.press(2);
    EXPECT_EQ(shown(e.editor), "C B");
    e.press(3);
    EXPECT_EQ(shown(e.editor), "B C");
    EXPECT_TRUE(e.list().hasFocus()) << "not on a button that is no longer enabled";
    key(Qt::Key_Delete);
    key(Qt::Key_Delete);
    key(Qt::Key_Delete);
    EXPECT_EQ(shown(e.editor), "");
    EXPECT_EQ(e.edits, 10);
}

TEST(ChoiceEditor, EditsAChoiceInPlaceAndKeepsARefusedTextInItsBox) {
    Editing e;
    e.editor.show({"A", "B ", "b", "x\ny"}, 1);
    e.choose(1);
    e.retype("B ");
    EXPECT_EQ(e.editor.choices(), (QStringList{"A", "B ", "b", "x\ny"})) << "as it was stored";
    e.choose(3);
    QTest::keyClick(&e.list(), Qt::Key_F2);
    QTest::keyClick(e.box(), Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(e.editor.choices().last(), "x\ny");
    EXPECT_EQ(e.edits, 0);
    e.choose(1);
    e.retype(" Best ");
    EXPECT_EQ(e.editor.choices(), (QStringList{"A", "Best", "b", "x\ny"}));
    EXPECT_EQ(e.editor.selected(), 1);
    e.user->whenShown = [&e] { e.list().setFocus(); };
    for (const char* refused : {"", "a", "A|B"}) {
        e.user->clear();
        e.retype(refused);
        EXPECT_EQ(e.user->boxes.size(), 1u) << refused;
        ASSERT_TRUE(e.box()) << refused;
        EXPECT_TRUE(e.box()->hasFocus());
        EXPECT_EQ(e.box()->text(), refused);
        e.choose(0);
        EXPECT_FALSE(e.editor.takeEdit());
        e.list().setFocus();
        e.choose(1);
        QTest::keyClick(&e.list(), Qt::Key_F2);
        ASSERT_TRUE(e.box());
        EXPECT_TRUE(e.box()->hasFocus()) << "back in the box that is open";
        QTest::keyClick(e.box(), Qt::Key_Escape);
        EXPECT_TRUE(e.editor.takeEdit());
        e.choose(1);
    }
    EXPECT_EQ(e.edits, 1);
    QTest::keyClick(&e.list(), Qt::Key_F2);
    e.box()->setText("Better");
    e.press(3);
    EXPECT_EQ(e.editor.choices(), (QStringList{"A", "b", "Better", "x\ny"})) << "taken before the move";
    QTest::keyClick(&e.list(), Qt::Key_F2);
    e.box()->setText("A|B");
    e.editor.show({"X"}, -1);
    EXPECT_TRUE(e.editor.takeEdit()) << "the edit ended with what it was of";
    EXPECT_EQ(shown(e.editor), "X");
}

} // namespace Korvane
