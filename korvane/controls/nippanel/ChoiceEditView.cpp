#include <korvane/controls/nippanel/ChoiceEditView.h>

#include <korvane/controls/container/Keys.h>
#include <korvane/controls/nippanel/ChoiceEditDelegate.h>
#include <korvane/controls/nippanel/ChoiceOrderModel.h>
#include <korvane/controls/nippanel/ListEntryText.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>

namespace Korvane {

ChoiceEditView::ChoiceEditView(ChoiceOrderModel* choices, QWidget* parent)
    : WrappingList(parent), mChoices(choices), mDelegate(new ChoiceEditDelegate(this)) {
    setModel(choices);
    setItemDelegate(mDelegate);
    setEditTriggers(DoubleClicked | EditKeyPressed);
}

bool ChoiceEditView::takeEdit() {
    QLineEdit* box = mDelegate->box();
    if (!box) return true;
    if (!mDelegate->fault().isEmpty()) {
        refuse();
        return false;
    }
    commitData(box);
    closeEditor(box, QAbstractItemDelegate::SubmitModelCache);
    return true;
}

// The message takes the focus off the box.
void ChoiceEditView::refuse() {
    const QPointer<QLineEdit> box = mDelegate->box();
    scrollTo(mDelegate->edited());
    showListEntryFault(mDelegate->fault());
    if (box) box->setFocus();
}

bool ChoiceEditView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    const bool opensBox = trigger == DoubleClicked || trigger == EditKeyPressed;
    if (opensBox && mDelegate->box() && index == mDelegate->edited()) {
        mDelegate->box()->setFocus();
        return true;
    }
    if (opensBox && !takeEdit()) return false;
    return WrappingList::edit(index, trigger, event);
}

// The box leaves the Enter that ends it to its parents, where a dialog's default button must not get it.
void ChoiceEditView::keyPressEvent(QKeyEvent* event) {
    if (!isEnter(*event) || !mDelegate->box()) WrappingList::keyPressEvent(event);
}

void ChoiceEditView::commitData(QWidget* editor) {
    if (mDelegate->fault().isEmpty()) WrappingList::commitData(editor);
}

// A box that has lost the focus stays open without a word: the user may be on the way to another program. He
// is told when he ends the edit, or when somebody calls `takeEdit`.
void ChoiceEditView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    const bool givenUp = hint == QAbstractItemDelegate::RevertModelCache || !editor->isVisible();
    if (!givenUp && !mDelegate->fault().isEmpty()) {
        if (editor->hasFocus()) refuse();
        return;
    }
    const QPersistentModelIndex edited = mDelegate->edited();
    WrappingList::closeEditor(editor, QAbstractItemDelegate::NoHint);
    if (edited.isValid() && !mChoices->isChoice(edited.row())) mChoices->remove(edited.row());
}

} // namespace Korvane
