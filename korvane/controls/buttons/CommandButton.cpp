#include <korvane/controls/buttons/CommandButton.h>

#include <QFocusEvent>
#include <QHelpEvent>
#include <QStyleOptionButton>
#include <QToolTip>

namespace Korvane {

CommandButton::CommandButton(QWidget* parent) : QPushButton(parent) {
    setAutoDefault(false);
}

bool CommandButton::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::Shortcut:
        setFocus(Qt::ShortcutFocusReason);
        return !hasFocus() || QPushButton::event(event);
    case QEvent::ToolTip:
        if (!toolTip().isEmpty()) break;
        showWholeCaption(static_cast<QHelpEvent*>(event)->globalPos());
        return true;
    default:
        break;
    }
    return QPushButton::event(event);
}

void CommandButton::showWholeCaption(const QPoint& at) {
    QStyleOptionButton option;
    initStyleOption(&option);
    if (option.text != text()) QToolTip::showText(at, text().remove(u'&'), this);
}

/// A dialog that has no default button of its own takes the first one that may become it by itself: this one
/// may only while it has the focus.
void CommandButton::focusInEvent(QFocusEvent* event) {
    setAutoDefault(true);
    QPushButton::focusInEvent(event);
}

void CommandButton::focusOutEvent(QFocusEvent* event) {
    QPushButton::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason) setAutoDefault(false);
}

void CommandButton::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    option->fontMetrics = QFontMetrics(captionFont());
    const QRect room = style()->subElementRect(QStyle::SE_PushButtonContents, option, this);
    option->text =
        option->fontMetrics.elidedText(option->text, Qt::ElideRight, room.width(), Qt::TextShowMnemonic);
}

} // namespace Korvane
