#include <korvane/controls/nippanel/ComboEntry.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QHelpEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <limits>

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
        const int needed = list->sizeHintForColumn(0) + 2 * list->frameWidth() +
                           style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        list->setMinimumWidth(std::clamp(needed, width(), std::max(width(), window()->width())));
        QComboBox::showPopup();
    }

    /// Without the completer that a combo box gives itself: it changes what was typed into the case of an
    /// item, and costs more than the box.
    void takeAnyText() {
        auto* text = new QLineEdit(this);
        text->setMaxLength(std::numeric_limits<int>::max());
        QCompleter placeholder;
        text->setCompleter(&placeholder);
        setLineEdit(text);
        text->setCompleter(nullptr);
    }

  protected:
    bool event(QEvent* event) override {
        if (event->type() != QEvent::ToolTip) return QComboBox::event(event);
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), isCut() ? currentText() : QString(),
                           this);
        return true;
    }
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }

  private:
    bool isCut() const {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        const QRect room =
            style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
        return fontMetrics().horizontalAdvance(currentText()) > room.width();
    }
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
