#include <korvane/controls/container/Busy.h>

#include <QGuiApplication>
#include <QWidget>

namespace Korvane {

Hourglass::Hourglass() {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

Hourglass::~Hourglass() {
    QGuiApplication::restoreOverrideCursor();
}

// The forced flag is the widget's own; `updatesEnabled` would also be false for the sake of a locked parent.
PaintLock::PaintLock(QWidget& widget)
    : mWidget(widget), mWasEnabled(!widget.testAttribute(Qt::WA_ForceUpdatesDisabled)) {
    mWidget.setUpdatesEnabled(false);
}

PaintLock::~PaintLock() {
    mWidget.setUpdatesEnabled(mWasEnabled);
}

} // namespace Korvane
