#include <korvane/controls/nippanel/ComboEntry.h>

#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/ValueListModel.h>

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
        setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
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
    mItems = new ValueListModel(mCombo);
    mCombo->setModel(mItems);
    if (accepts == AnyText) combo->takeAnyText();
    identify(*mCombo);
    QObject::connect(mCombo, &QComboBox::currentTextChanged, mCombo, [this] { site().edited(); });
}

QWidget* ComboEntry::widget() const {
    return mCombo;
}

void ComboEntry::fill() {
    const auto& [nip, group, field] = std::tie(site().nip, site().group, site().field);
    const std::string stored = nip.value(group, field).textOrEmpty();
    mShown = qt(stored);
    const QSignalBlocker quiet(mCombo);
    mItems->show(nip.ValueList(group, field), nip.ValueListCount(group, field), mAccepts == ItemsOnly,
                 stored);
    mCombo->setCurrentIndex(mItems->find(stored));
    if (mAccepts == ItemsOnly) return;
    mCombo->setEditText(mShown);
    mCombo->lineEdit()->setCursorPosition(0);
}

void ComboEntry::collect() {
    const QString text = mCombo->currentText();
    if (text == mShown) return;
    site().nip.value(site().group, site().field, utf8(text));
    mShown = text;
}

} // namespace Korvane
