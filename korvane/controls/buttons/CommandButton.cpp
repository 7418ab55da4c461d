#include <korvane/controls/buttons/CommandButton.h>

#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QShortcutEvent>
#include <QStyleOptionButton>
#include <QToolTip>

namespace Korvane {

namespace {

/// As it is shown: without the mark of its accelerator, and one ampersand for two.
QString withoutMark(QString caption) {
    for (qsizetype at = 0; (at = caption.indexOf(u'&', at)) >= 0; ++at)
        caption.remove(at, 1);
    return caption;
}

} // namespace

CommandButton::CommandButton(QWidget* parent) : QPushButton(parent) {
    setAutoDefault(false);
}

bool CommandButton::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::Shortcut:
        return takeAccelerator(static_cast<QShortcutEvent&>(*event)) || QPushButton::event(event);
    case QEvent::ToolTip:
        if (!toolTip().isEmpty()) break;
        showWholeCaption(static_cast<QHelpEvent*>(event)->globalPos());
        return true;
    default:
        break;
    }
    return QPushButton::event(event);
}

/// Qt would show the button pressed for a while and click it then, whether or not it can still be clicked.
/// One that several buttons have moves on among them.
bool CommandButton::takeAccelerator(const QShortcutEvent& accelerator) {
    if (accelerator.isAmbiguous()) return false;
    setShortcutAutoRepeat(accelerator.shortcutId(), false);
    const QPointer<CommandButton> self = this;
    setFocus(Qt::ShortcutFocusReason);
    if (self && hasFocus()) click();
    return true;
}

/// Enter that is held down would go on clicking, and with "Remove from List" empty the list.
void CommandButton::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || !event->isAutoRepeat()) QPushButton::keyPressEvent(event);
}

void CommandButton::showWholeCaption(const QPoint& at) {
    QStyleOptionButton option;
    initStyleOption(&option);
    if (option.text != text()) QToolTip::showText(at, withoutMark(text()), this);
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
