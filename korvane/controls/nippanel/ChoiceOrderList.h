#pragma once

#include <korvane/controls/nippanel/ChoiceEditView.h>

#include <QPersistentModelIndex>
#include <QTimer>

class QPainter;

namespace Korvane {

/// The list of the choices (`lstNipChoices`), put in order by dragging, or with Alt+Up and Alt+Down.
///
/// While a choice is dragged an empty row stands behind the last one, a mark shows before which row the
/// choice will be put, and near the upper and lower edge the list scrolls (`timDragging`). With the Ctrl key
/// held it is copied: as no two choices are the same, the copy waits for another text, and goes with Esc.
/// A drag that ends elsewhere, or with Esc, changes nothing.
class ChoiceOrderList : public ChoiceEditView {
  public:
    ChoiceOrderList(ChoiceOrderModel* choices, QWidget* parent);

    /// What a drag is begun and ended with, whatever becomes of it in between.
    void beginDrag(const QModelIndex& choice);
    void endDrag();

    /// Moves the current choice a row up (-1) or down (1).
    void moveCurrent(int by);
    bool canMoveCurrent(int by) const;

  protected:
    void startDrag(Qt::DropActions supported) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool isOurs(const QDropEvent& event) const;
    int targetAt(QPoint point) const;
    Qt::DropAction effect(const QDropEvent& event, int target) const;
    void mark(int row);
    void copy(int row, int before);
    void paintFocus(QPainter& painter, int thickness);
    void paintMark(QPainter& painter, int thickness);
    int scrollDirection() const;
    void scrollAtEdge();

    QTimer mTimer;
    QPersistentModelIndex mDragged;
    QPersistentModelIndex mPlace; ///< the empty row behind the last choice
    QPoint mPoint;                ///< where the dragged choice is
    int mMarked = -1;             ///< the row that the mark stands before
    int mScrolled = 0;            ///< ticks without a pause
};

} // namespace Korvane
