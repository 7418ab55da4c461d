#include <korvane/controls/nippanel/ComboEntry.h>

#include <korvane/controls/container/PageCombo.h>

#include <QLineEdit>
#include <QSignalBlocker>

namespace Korvane {

ComboEntry::ComboEntry(EntrySite entrySite, Accepts accepts)
    : EntryControl(std::move(entrySite)), mAccepts(accepts) {
    auto* combo = new PageCombo(site().parent);
    mCombo = combo;
    if (accepts == AnyText) combo->takeAnyText();
    QObject::connect(mCombo, &QComboBox::currentTextChanged, mCombo, [this] { site().edited(); });
}

QWidget* ComboEntry::widget() const {
    return mCombo;
}

// The combo box keeps its own model: giving it another one, as much else that is said to it, makes the list
// that drops down at once, which costs more than all the rest.
void ComboEntry::showValue() {
    const QString stored = site().storedText();
    const QStringList list = itemsFor(stored);
    const QSignalBlocker quiet(mCombo);
    mCombo->clear();
    mCombo->addItems(list);
    mCombo->setCurrentIndex(static_cast<int>(list.indexOf(stored)));
    if (mAccepts == AnyText) {
        mCombo->setEditText(stored);
        mCombo->lineEdit()->setCursorPosition(0);
    }
}

QStringList ComboEntry::itemsFor(const QString& stored) const {
    QStringList list = site().allowedValues();
    if (mAccepts == ItemsOnly && !list.contains(QString())) list.prepend(QString());
    if (!stored.isEmpty() && !list.contains(stored)) list.append(stored);
    return list;
}

QStringList ComboEntry::content() const {
    return {mCombo->currentText()};
}

} // namespace Korvane
