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

} // namespace Korvane
