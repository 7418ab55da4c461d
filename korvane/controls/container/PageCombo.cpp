#include <korvane/controls/container/PageCombo.h>

#include <korvane/controls/container/Text.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QHelpEvent>
#include <QLineEdit>
#include <QStyleOptionComboBox>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <limits>

namespace Korvane {

PageCombo::PageCombo(QWidget* parent) : QComboBox(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setInsertPolicy(QComboBox::NoInsert);
}

void PageCombo::showPopup() {
    QAbstractItemView* list = view();
    list->setTextElideMode(Qt::ElideNone);
    const int needed = list->sizeHintForColumn(0) + 2 * list->frameWidth() +
                       style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    list->setMinimumWidth(std::clamp(needed, width(), std::max(width(), window()->width())));
    QComboBox::showPopup();
}

// Without the completer that a combo box gives itself: it changes what was typed into the case of an item,
// and costs more than the box.
void PageCombo::takeAnyText() {
    auto* text = new QLineEdit(this);
    text->setMaxLength(std::numeric_limits<int>::max());
    QCompleter placeholder;
    text->setCompleter(&placeholder);
    setLineEdit(text);
    text->setCompleter(nullptr);
}

bool PageCombo::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !isCut()) return QComboBox::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTipOf(currentText()), this);
    return true;
}

void PageCombo::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

bool PageCombo::isCut() const {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect room =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    return fontMetrics().horizontalAdvance(currentText()) > room.width();
}

} // namespace Korvane
