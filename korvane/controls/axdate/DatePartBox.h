#pragma once

#include <QClipboard>
#include <QLineEdit>

class QDropEvent;

namespace Korvane {

struct DateParts;

/// The source of a drop keeps what was dropped: no more than the date in it is taken.
void acceptCopy(QDropEvent& event);

/// A box for one part of a date (`txtDate(0)` month, `txtDate(1)` day, `txtDate(2)` year). Digits alone can
/// be typed or pasted into it; `setText` takes anything. The click that brings the focus leaves the whole
/// text selected.
///
/// What the keys mean beyond the part is told by signals. Cutting and undoing are the part's own.
class DatePartBox : public QLineEdit {
    Q_OBJECT

  public:
    DatePartBox(int index, QWidget* parent);

    int index() const { return mIndex; }

    /// Wide and high enough for that many digits, or the placeholder.
    QSize sizeFor(int digits) const;

  signals:
    void enterPressed();
    /// -1 and 1: to the part before and after.
    void moveWanted(int by);
    /// 1 and -1: up and down.
    void stepWanted(int by);
    void copyWanted();
    /// A whole date was pasted or dropped.
    void dateGiven(const DateParts& date);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    bool isAtEdge(int key) const;
    bool take(const QString& text);
    void takeClipboard(QClipboard::Mode mode = QClipboard::Clipboard);

    int mIndex;
    bool mClickBroughtFocus = false;
};

} // namespace Korvane
