#include <korvane/controls/nippanel/ComboEntry.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>

namespace Korvane {

namespace {

/// A combo box on a page that scrolls: the wheel scrolls the page and never changes an answer; the list that
/// drops down is wide enough for its items.
class PageCombo : public QComboBox {
  public:
    explicit PageCombo(QWidget* parent) : QComboBox(parent) {
        setFocusPolicy(Qt::StrongFocus);
        setInsertPolicy(QComboBox::NoInsert);
    }

    void showPopup() override {
        QAbstractItemView* list = view();
        list->setTextElideMode(Qt::ElideNone);
        list->setMinimumWidth(std::max(width(), list->sizeHintForColumn(0) + 2 * list->frameWidth() +
                                                    style()->pixelMetric(QStyle::PM_ScrollBarExtent)));
        QComboBox::showPopup();
    }

    /// Without the completer that a combo box gives itself: it changes what was typed into the case of an
    /// item, and costs more than the box.
    void takeAnyText() {
        auto* text = new QLineEdit(this);
        QCompleter placeholder;
        text->setCompleter(&placeholder);
        setLineEdit(text);
        text->setCompleter(nullptr);
    }

  protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

} // namespace

ComboEntry::ComboEntry(EntrySite entrySite, Accepts accepts)
    : EntryControl(std::move(entrySite)), mAccepts(accepts) {
    auto* combo = new PageCombo(site().parent);
    mCombo = combo;
    if (accepts == AnyText) combo->takeAnyText();
    identify(*mCombo);
    QObject::connect(mCombo, &QComboBox::currentTextChanged, mCombo, [this] { site().edited(); });
}

QWidget* ComboEntry::widget() const {
    return mCombo;
}

// The combo box keeps its own model: giving it another one, as much else that is said to it, makes the list
// that drops down at once, which costs more than all the rest.
void ComboEntry::fill() {
    mShown = site().storedText();
    const QStringList list = items();
    const QSignalBlocker quiet(mCombo);
    mCombo->clear();
    mCombo->addItems(list);
    mCombo->setCurrentIndex(static_cast<int>(list.indexOf(mShown)));
    if (mAccepts == ItemsOnly) return;
    mCombo->setEditText(mShown);
    mCombo->lineEdit()->setCursorPosition(0);
}

QStringList ComboEntry::items() const {
    QStringList list = site().allowedValues();
    if (mAccepts == ItemsOnly && !list.contains(QString())) list.prepend(QString());
    if (!mShown.isEmpty() && !list.contains(mShown)) list.append(mShown);
    return list;
}

void ComboEntry::collect() {
    const QString text = mCombo->currentText();
    if (text == mShown) return;
    site().store(text);
    mShown = text;
}

} // namespace Korvane
