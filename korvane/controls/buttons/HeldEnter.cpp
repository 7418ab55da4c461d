#include <korvane/controls/buttons/HeldEnter.h>

#include <korvane/controls/container/Keys.h>

#include <QCoreApplication>

namespace Korvane {

HeldEnter::HeldEnter() : QObject(qApp) {
    qApp->installEventFilter(this);
}

/// It may be let go where nobody hears of it; then the next press of any key tells.
bool HeldEnter::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
    const auto& key = static_cast<QKeyEvent&>(*event);
    if (key.isAutoRepeat()) return true;
    if (event->type() == QEvent::KeyRelease && !isEnter(key)) return false;
    qApp->removeEventFilter(this);
    deleteLater();
    return false;
}

} // namespace Korvane
