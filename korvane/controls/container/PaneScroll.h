#pragma once

#include <QScrollArea>

namespace Korvane {

/// Scrolls a pane of entries up and down, and to whatever gets the focus. It looks like what is around it.
class PaneScroll : public QScrollArea {
    Q_OBJECT

  public:
    explicit PaneScroll(QWidget* parent);
    ~PaneScroll() override;

    /// As wide as the pane can be, and a scroll bar.
    QSize minimumSizeHint() const override;

  protected:
    int scrollBarWidth() const;

  private:
    void reveal(QWidget* focus);
};

} // namespace Korvane
