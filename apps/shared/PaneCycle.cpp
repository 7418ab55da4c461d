#include "shared/PaneCycle.h"

#include <QApplication>

namespace Apps {

namespace {

bool takesFocus(const QWidget* widget) {
    return widget && widget->isVisible() && widget->isEnabled() &&
           (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
}

QWidget* firstIn(QWidget* pane) {
    for (QWidget* w = pane->nextInFocusChain(); w != pane; w = w->nextInFocusChain()) {
        if (pane->isAncestorOf(w) && takesFocus(w)) return w;
    }
    return nullptr;
}

} // namespace

PaneCycle::PaneCycle(std::vector<QWidget*> panes, QObject* parent)
    : QObject(parent), mPanes(std::move(panes)), mLast(mPanes.size()) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { remember(now); });
}

int PaneCycle::paneOf(const QWidget* widget) const {
    int innermost = -1;
    for (std::size_t i = 0; i < mPanes.size(); ++i) {
        if (mPanes[i]->isAncestorOf(widget)) innermost = static_cast<int>(i);
    }
    return innermost;
}

void PaneCycle::remember(QWidget* now) {
    const int pane = now ? paneOf(now) : -1;
    if (pane >= 0) mLast[static_cast<std::size_t>(pane)] = now;
}

void PaneCycle::step(int by) {
    const int count = static_cast<int>(mPanes.size());
    const QWidget* focus = QApplication::focusWidget();
    int pane = focus ? paneOf(focus) : -1;
    for (int tries = 0; tries < count; ++tries) {
        pane = (pane + by + count) % count;
        if (enter(pane)) return;
    }
}

bool PaneCycle::enter(int pane) {
    const auto i = static_cast<std::size_t>(pane);
    QWidget* target = takesFocus(mLast[i]) ? mLast[i].data() : firstIn(mPanes[i]);
    if (!target) return false;
    target->setFocus(Qt::TabFocusReason);
    return true;
}

} // namespace Apps
