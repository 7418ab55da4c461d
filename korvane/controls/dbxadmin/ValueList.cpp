#include <korvane/controls/dbxadmin/ValueList.h>

#include <korvane/controls/buttons/CommandButton.h>
#include <korvane/controls/container/Keys.h>
#include <korvane/controls/container/UserControl.h>
#include <korvane/controls/dbxadmin/GivenText.h>
#include <korvane/controls/dbxadmin/ListText.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>

namespace Korvane {

/// A form that gives the list back as it is told of a change does not move the user to another value, which a
/// second click or key would remove.
void ValueList::setData(const QString& text) {
    mData = text;
    if (text.isEmpty()) return;
    const auto items = listItems(text);
    if (isAncestorOf(QApplication::focusWidget()) && items == shownItems()) return;
    const QSignalBlocker quiet(lstAddtoList);
    lstAddtoList->clear();
    lstAddtoList->addItems(items);
    lstAddtoList->setCurrentRow(0);
    setRemoves(mRemoves);
}

void ValueList::clear() {
    hideData();
    mData.clear();
}

void ValueList::hideData() {
    const QSignalBlocker quiet(lstAddtoList);
    lstAddtoList->clear();
}

/// A text that is not empty has values: where none are shown, they were hidden.
void ValueList::showData() {
    if (lstAddtoList->count() == 0) setData(mData);
}

QString ValueList::entryText() const {
    return txtAddtoList->text();
}

/// What the form makes of a text while it is being typed is the user's still.
void ValueList::setEntryText(const QString& text) {
    if (!showGivenText(*txtAddtoList, text)) return;
    mTyped = mTyped && txtAddtoList->hasFocus() && !text.isEmpty();
    setRemoves(mRemoves);
}

/// A button that was disabled comes back where there is something for it to do.
void ValueList::setRemoves(bool on) {
    mRemoves = on;
    mButtonOn = mButtonOn || hasWork();
    showButton();
}

/// From the last part to the first: one that has the focus passes it to what is behind all of them.
void ValueList::setEditable(bool on) {
    if (on && !mEditable) mButtonOn = true;
    mEditable = on;
    lstAddtoList->setEnabled(on);
    showButton();
    txtAddtoList->setEnabled(on);
}

void ValueList::showButton() {
    cmdAddtoList->setText(mRemoves ? tr("Remove from List") : tr("Add to List"));
    cmdAddtoList->setEnabled(mEditable && mButtonOn);
}

int ValueList::selectedRow() const {
    const auto selected = lstAddtoList->selectedItems();
    return selected.isEmpty() ? -1 : lstAddtoList->row(selected.front());
}

bool ValueList::hasWork() const {
    return mRemoves ? selectedRow() >= 0 : !entryText().isEmpty();
}

void ValueList::typed() {
    mTyped = !entryText().isEmpty();
    mButtonOn = false;
    setRemoves(false);
    emit entryChanged();
}

void ValueList::add() {
    const QString text = entryText();
    if (text.isEmpty()) return;
    if (!canBeListItem(text)) return explainSeparator();
    {
        const QSignalBlocker quiet(lstAddtoList);
        lstAddtoList->addItem(text);
        lstAddtoList->setCurrentRow(lstAddtoList->count() - 1);
    }
    changed();
    txtAddtoList->setFocus();
    txtAddtoList->clear();
}

/// One value for each selection by the button: a click or a key too many takes none away.
void ValueList::remove(bool selectsNext) {
    const int row = selectedRow();
    if (row < 0) return;
    delete lstAddtoList->takeItem(row);
    if (!selectsNext) lstAddtoList->clearSelection();
    if (lstAddtoList->count() == 0) {
        if (cmdAddtoList->hasFocus()) lstAddtoList->setFocus();
        mButtonOn = false;
        showButton();
    }
    changed();
}

QStringList ValueList::shownItems() const {
    QStringList items;
    for (int i = 0; i < lstAddtoList->count(); ++i)
        items << lstAddtoList->item(i)->text();
    return items;
}

void ValueList::changed() {
    mData = listText(shownItems());
    emit listChanged();
}

bool ValueList::eventFilter(QObject* watched, QEvent* event) {
    if (mControl.designMode()) return false;
    if (event->type() == QEvent::KeyPress) return take(watched, static_cast<QKeyEvent&>(*event));
    if (event->type() != QEvent::FocusIn) return false;
    if (watched == txtAddtoList) setRemoves(false);
    if (watched == lstAddtoList && selectedRow() >= 0) setRemoves(true);
    return false;
}

/// Enter does not reach the default button of a dialog, not even from an empty box: it may be one too many.
/// A Delete that is held down removes one value, not all of them.
bool ValueList::take(const QObject* part, const QKeyEvent& key) {
    if (isEnter(key) && part == txtAddtoList) {
        if (!key.isAutoRepeat()) add();
        return true;
    }
    if (part != lstAddtoList || key.key() != Qt::Key_Delete || !isPlain(key)) return false;
    if (!key.isAutoRepeat()) remove(true);
    return true;
}

} // namespace Korvane
