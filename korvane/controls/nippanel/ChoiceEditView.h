#pragma once

#include <korvane/controls/nippanel/WrappingList.h>

namespace Korvane {

class ChoiceEditDelegate;
class ChoiceOrderModel;

/// A list whose choices are edited in place (F2, a double click). A text that the list refuses stays in its
/// box, and the user is told why, until he changes it or gives it up with Esc; a row that is no choice yet
/// goes with it.
class ChoiceEditView : public WrappingList {
  public:
    ChoiceEditView(ChoiceOrderModel* choices, QWidget* parent);

    ChoiceOrderModel& choices() const { return *mChoices; }

    /// Takes what stands in the box of a choice that is being edited. False, after the user has been told,
    /// when the list refuses it. True when nothing is edited.
    bool takeEdit();

    const ChoiceEditDelegate& delegate() const { return *mDelegate; }

  protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void commitData(QWidget* editor) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

  private:
    void refuse();

    ChoiceOrderModel* mChoices;
    ChoiceEditDelegate* mDelegate;
};

} // namespace Korvane
