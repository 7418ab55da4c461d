#include <korvane/controls/container/PaneScroll.h>

#include <QApplication>
#include <QStyle>

#include <algorithm>

namespace Korvane {

PaneScroll::PaneScroll(QWidget* parent) : QScrollArea(parent) {
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { reveal(now); });
}

/// The focus moves on from what is in it while it goes, when it is no scroll area any more.
PaneScroll::~PaneScroll() {
    disconnect(qApp, nullptr, this, nullptr);
}

QSize PaneScroll::minimumSizeHint() const {
    const int pane = widget() ? widget()->minimumSizeHint().width() : 0;
    return {pane + scrollBarWidth(), QScrollArea::minimumSizeHint().height()};
}

int PaneScroll::scrollBarWidth() const {
    return style()->pixelMetric(QStyle::PM_ScrollBarExtent);
}

/// With the line above it where there is room: it tells what this is. What is under the mouse must not move
/// away between press and release.
void PaneScroll::reveal(QWidget* focus) {
    if (!focus || !widget() || !widget()->isAncestorOf(focus) ||
        QGuiApplication::mouseButtons() != Qt::NoButton)
        return;
    const int room = (viewport()->height() - focus->height()) / 2;
    ensureWidgetVisible(focus, 0, std::clamp(room, 0, 2 * fontMetrics().height()));
}

} // namespace Korvane
