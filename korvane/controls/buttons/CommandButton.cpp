#include <korvane/controls/buttons/CommandButton.h>

#include <korvane/controls/buttons/HeldEnter.h>
#include <korvane/controls/buttons/WholeCaption.h>
#include <korvane/controls/container/Keys.h>

#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QShortcutEvent>
#include <QStyleOptionButton>

namespace Korvane {

CommandButton::CommandButton(QWidget* parent) : QPushButton(parent) {
    setAutoDefault(false);
}

bool CommandButton::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::Shortcut:
        return takeAccelerator(static_cast<QShortcutEvent&>(*event)) || QPushButton::event(event);
    case QEvent::ToolTip:
        if (!toolTip().isEmpty() || !isShortened()) break;
        showWholeCaption(static_cast<QHelpEvent&>(*event), text(), *this);
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
    if (isEnter(*event) && event->isAutoRepeat()) return;
    if (isEnter(*event)) new HeldEnter;
    QPushButton::keyPressEvent(event);
}

bool CommandButton::isShortened() const {
    QStyleOptionButton option;
    initStyleOption(&option);
    return option.text != text();
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
