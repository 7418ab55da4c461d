#include <korvane/controls/nippanel/FieldPicker.h>

#include <korvane/nip/FieldPlace.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QVariant>
#include <QWidget>

namespace Korvane {

namespace {

FieldPlace placeOf(const QWidget* widget, const QWidget* form) {
    for (; widget && widget != form; widget = widget->parentWidget()) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        const QWidget* tagged = label && label->buddy() ? label->buddy() : widget;
        const QStringList tag = tagged->property("Tag").toString().split("::");
        if (tag.size() >= 2) return {tag[0].toShort(), tag[1].toShort()};
    }
    return {};
}

} // namespace

FieldPicker::FieldPicker(QWidget* form) : QObject(form), mForm(form) {}

void FieldPicker::setActive(bool on) {
    if (on == mActive) return;
    mActive = on;
    if (on)
        qApp->installEventFilter(this);
    else
        qApp->removeEventFilter(this);
}

/// What an ignored event says to the parents reaches them, past the entry.
bool FieldPicker::eventFilter(QObject* watched, QEvent* event) {
    const auto* widget = qobject_cast<const QWidget*>(watched);
    if (!widget || !mForm->isAncestorOf(widget)) return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::InputMethod:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Wheel:
        break;
    default:
        return false;
    }
    const FieldPlace place = placeOf(widget, mForm);
    return place.field > 0 && pressed(*event, place.group, place.field);
}

bool FieldPicker::pressed(QEvent& event, int group, int field) {
    const QEvent::Type type = event.type();
    bool picks =
        type == QEvent::MouseButtonPress && static_cast<QMouseEvent&>(event).button() == Qt::LeftButton;
    if (type == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent&>(event).key();
        if (key == Qt::Key_Tab || key == Qt::Key_Backtab) return false;
        picks = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
    }
    const bool isForParents =
        type == QEvent::KeyPress || type == QEvent::ShortcutOverride || type == QEvent::Wheel;
    event.setAccepted(picks || !isForParents);
    if (picks)
        QMetaObject::invokeMethod(
            this, [this, group, field] { emit picked(group, field); }, Qt::QueuedConnection);
    return true;
}

} // namespace Korvane
