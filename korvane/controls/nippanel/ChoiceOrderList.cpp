#include <korvane/controls/nippanel/ChoiceOrderList.h>

#include <korvane/controls/nippanel/ChoiceOrderModel.h>

#include <QDrag>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>

#include <algorithm>
#include <chrono>
#include <memory>

namespace Korvane {

namespace {

constexpr char format[] = "application/x-korvane-choice";
constexpr std::chrono::milliseconds tick{80};

} // namespace

ChoiceOrderList::ChoiceOrderList(ChoiceOrderModel* choices, QWidget* parent)
    : ChoiceEditView(choices, parent), mTimer(this) {
    setObjectName("lstNipChoices");
    setDragDropMode(InternalMove);
    setDropIndicatorShown(false);
    mTimer.setObjectName("timDragging");
    mTimer.setSingleShot(true);
    mTimer.setInterval(tick);
    connect(&mTimer, &QTimer::timeout, this, [this] { scrollAtEdge(); });
}

void ChoiceOrderList::beginDrag(const QModelIndex& choice) {
    mDragged = choice;
    choices().insert(choices().rowCount(), {});
    mPlace = choices().index(choices().rowCount() - 1);
}

// Both are gone if other choices have been shown meanwhile.
void ChoiceOrderList::endDrag() {
    mTimer.stop();
    mark(-1);
    if (mPlace.isValid()) choices().remove(mPlace.row());
    mDragged = QModelIndex();
    mPlace = QModelIndex();
}

void ChoiceOrderList::startDrag(Qt::DropActions) {
    const QModelIndex choice = currentIndex();
    if (!choice.isValid() || !takeEdit()) return;
    auto* dragged = new QMimeData;
    dragged->setData(format, choice.data().toString().toUtf8());
    beginDrag(choice);
    const QPointer<ChoiceOrderList> self(this);
    auto* drag = new QDrag(this);
    drag->setMimeData(dragged);
    drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
    if (self) endDrag();
}

bool ChoiceOrderList::isOurs(const QDropEvent& event) const {
    return mDragged.isValid() && event.mimeData()->hasFormat(format);
}

// Below the rows is where the last one goes.
int ChoiceOrderList::targetAt(QPoint point) const {
    if (!viewport()->rect().contains(point)) return -1;
    const QModelIndex under = indexAt(point);
    return under.isValid() ? under.row() : mPlace.row();
}

Qt::DropAction ChoiceOrderList::effect(const QDropEvent& event, int target) const {
    if (target < 0) return Qt::IgnoreAction;
    if (event.modifiers().testFlag(Qt::ControlModifier)) return Qt::CopyAction;
    return target == mDragged.row() ? Qt::IgnoreAction : Qt::MoveAction;
}

// Accepted for the whole list, also where a drop does nothing: the moves that follow are wanted.
void ChoiceOrderList::dragEnterEvent(QDragEnterEvent* event) {
    if (isOurs(*event))
        event->accept();
    else
        event->ignore();
}

void ChoiceOrderList::dragMoveEvent(QDragMoveEvent* event) {
    if (!isOurs(*event)) return event->ignore();
    mPoint = event->position().toPoint();
    const int target = targetAt(mPoint);
    mark(target);
    event->setDropAction(effect(*event, target));
    event->setAccepted(event->dropAction() != Qt::IgnoreAction);
    if (scrollDirection() == 0) mScrolled = 0;
    if (!mTimer.isActive()) mTimer.start();
}

void ChoiceOrderList::dragLeaveEvent(QDragLeaveEvent*) {
    mTimer.stop();
    mark(-1);
}

void ChoiceOrderList::dropEvent(QDropEvent* event) {
    if (!isOurs(*event)) return event->ignore();
    const int target = targetAt(event->position().toPoint());
    const Qt::DropAction action = effect(*event, target);
    event->setDropAction(action);
    event->setAccepted(action != Qt::IgnoreAction);
    mTimer.stop();
    mark(-1);
    if (action == Qt::MoveAction) {
        choices().move(mDragged.row(), target);
        setCurrentIndex(mDragged);
    } else if (action == Qt::CopyAction)
        copy(mDragged.row(), target);
}

void ChoiceOrderList::copy(int row, int before) {
    choices().insert(before, {false, choices().index(row).data().toString(), 0});
    setCurrentIndex(choices().index(before));
    QListView::edit(currentIndex());
}

void ChoiceOrderList::mark(int row) {
    mMarked = row;
    viewport()->update();
}

void ChoiceOrderList::paintEvent(QPaintEvent* event) {
    ChoiceEditView::paintEvent(event);
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    const int thickness = std::max(2, fontMetrics().height() / 8);
    if (hasFocus()) paintFocus(painter, thickness);
    if (mMarked >= 0) paintMark(painter, thickness);
}

// The highlight of the current choice is there without the focus, too.
void ChoiceOrderList::paintFocus(QPainter& painter, int thickness) {
    painter.setPen(QPen(palette().color(QPalette::Highlight), thickness));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(viewport()->rect());
}

void ChoiceOrderList::paintMark(QPainter& painter, int thickness) {
    const int tip = 2 * thickness;
    const int top = visualRect(choices().index(mMarked)).top();
    const int y = std::clamp(top, thickness, viewport()->height() - thickness);
    const int right = viewport()->width();
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Text));
    painter.drawRect(QRectF(0, y - thickness / 2.0, right, thickness));
    painter.drawPolygon(QPolygon({{0, y - tip}, {tip, y}, {0, y + tip}}));
    painter.drawPolygon(QPolygon({{right, y - tip}, {right - tip, y}, {right, y + tip}}));
}

int ChoiceOrderList::scrollDirection() const {
    const int edge = fontMetrics().height();
    if (mPoint.y() < edge) return -1;
    return mPoint.y() >= viewport()->height() - edge ? 1 : 0;
}

// One tick at a time: the longer the choice is held at an edge, the faster.
void ChoiceOrderList::scrollAtEdge() {
    const int direction = scrollDirection();
    if (!mDragged.isValid() || direction == 0) return;
    ++mScrolled;
    const int rows = 1 + mScrolled / 4;
    const int step = std::min(rows * 2 * fontMetrics().height(), viewport()->height());
    QScrollBar* bar = verticalScrollBar();
    bar->setValue(bar->value() + direction * step);
    mark(targetAt(mPoint));
    mTimer.start();
}

bool ChoiceOrderList::canMoveCurrent(int by) const {
    const int to = currentIndex().row() + by;
    return currentIndex().isValid() && to >= 0 && to < choices().rowCount();
}

void ChoiceOrderList::moveCurrent(int by) {
    if (!takeEdit() || !canMoveCurrent(by)) return;
    const int row = currentIndex().row();
    choices().move(row, by < 0 ? row - 1 : row + 2);
    scrollTo(currentIndex());
}

void ChoiceOrderList::keyPressEvent(QKeyEvent* event) {
    const bool alt = event->modifiers().testFlag(Qt::AltModifier);
    if (alt && event->key() == Qt::Key_Up) return moveCurrent(-1);
    if (alt && event->key() == Qt::Key_Down) return moveCurrent(1);
    ChoiceEditView::keyPressEvent(event);
}

} // namespace Korvane
