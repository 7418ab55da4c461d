#pragma once

#include <QStringList>
#include <QWidget>

#include <memory>

class QLabel;
class QPushButton;

namespace Korvane {

class ChoiceOrderList;
class ChoiceOrderModel;

/// The choices of a field while it is customized: the list `lstNipChoices` with the buttons `cmdNipChoices`
/// "Add" (0), "Remove" (1), "Move Up" (2) and "Move Down" (3).
///
///     editor->show({"Good", "Fair", "Poor"}, 0);
///     ...
///     if (!editor->takeEdit()) return;            // a text that the list refuses; the user has been told
///     definition.values = editor->choices();
///
/// The highlighted choice is the one that the buttons and keys work on; the checked one is the field's
/// default. Space or a click on its box checks a choice, or takes the check away.
///
/// The list refuses, with a message, a choice with "|" and one that differs from another in nothing but
/// case. Blanks at the ends of what is entered are dropped, and line breaks in it become blanks.
class ChoiceEditor : public QWidget {
    Q_OBJECT

  public:
    explicit ChoiceEditor(QWidget* parent = nullptr);

    /// Shows choices as they are, `selected` the place from 0 of the default (-1: none). Ends an edit or drag
    /// of what was shown before. Raises no `edited`.
    void show(const QStringList& choices, int selected);
    using QWidget::show;

    /// Says above the list what its choices are for: some fields offer them; for the others the default is
    /// all that they give.
    void explain(bool offered);

    /// In the order shown. A text that is still being typed does not count: see `takeEdit`.
    QStringList choices() const;
    /// The place of the default among them; -1 when there is none.
    int selected() const;

    /// Takes a text that is still being typed in place. False when the list refuses it: the user has been
    /// told, and the focus is on it.
    bool takeEdit();
    /// Whether a text that differs from its choice is still being typed.
    bool isTyping() const;

  signals:
    /// The user has changed the choices, their order or which one is the default.
    void edited();
    /// `isTyping` may have changed.
    void typed();

  private:
    QPushButton* makeButton(int index, const QString& text, const QString& tip);
    void arrange();
    void connectList();
    void add();
    void remove();
    void offerButtons();

    ChoiceOrderModel* mChoices;
    ChoiceOrderList* mList;
    QLabel* mTitle;
    QPushButton* mButtons[4];
    /// Made anew with every `show`, so that one who waits for the user sees whether the choices are still
    /// those that he asked for.
    std::shared_ptr<const int> mFilling;
};

} // namespace Korvane
