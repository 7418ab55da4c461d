#pragma once

#include <korvane/controls/nippanel/FieldDraft.h>

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;

namespace Korvane {

class ChoiceEditor;

/// The labels and inputs for one field (`lblCustNip`, `txtCustNip`, `cboCustNip`) with its choices.
///
///     form->fill(draftOf(nip, 1, 3));
///     ...
///     if (form->isChanged()) store(form->draft());
///
/// What differs from the field as it was filled in is marked beside its input. A name that is not valid
/// stands in a warning colour.
class FieldForm : public QWidget {
    Q_OBJECT

  public:
    explicit FieldForm(QWidget* parent = nullptr);

    /// Shows a field; for a new one the name follows what is typed as the caption until the user writes a
    /// name. Raises no `edited`.
    void fill(const FieldDraft& field, bool isNew);
    /// Keeps what was written and compares it with this field from now on.
    void compareWith(const FieldDraft& field);

    /// Takes a choice that is still being typed. False when it is none: the user has been told.
    bool takeEdit();
    FieldDraft draft() const;
    const FieldDraft& original() const { return mOriginal; }
    /// Also while a choice is still being typed.
    bool isChanged() const;
    /// Whether it is one of the boxes for text (`txtCustNip`).
    bool isBox(const QWidget* widget) const;
    void focus(FieldDraft::Input input);

  signals:
    void edited();

  private:
    QWidget* input(FieldDraft::Input input) const;
    QLineEdit* makeText(FieldDraft::Input input, const QString& label);
    QComboBox* makeCombo(FieldDraft::Input input, const QString& label);
    void addRow(FieldDraft::Input input, const QString& label, QWidget* widget);
    void proposeName();
    void note();
    void mark(FieldDraft::Input input, bool changed, const QString& before);

    QLabel* mMarks[7] = {};
    QLineEdit* mName;
    QLineEdit* mCaption;
    QComboBox* mType;
    QLineEdit* mWidth;
    QComboBox* mRule;
    QLineEdit* mRow;
    ChoiceEditor* mChoices;
    FieldDraft mOriginal;
    bool mProposesName = false;
};

} // namespace Korvane
