#pragma once

#include <QGroupBox>

class QStyleOptionGroupBox;

namespace Korvane {

/// The frame of a button panel. A caption that has no room is shortened and shown whole as a tool tip; where
/// the frame has a back colour of its own, line and caption stand a little inside of it.
class PanelFrame : public QGroupBox {
  public:
    using QGroupBox::QGroupBox;

    QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QStyleOptionGroupBox shownOption() const;
    int inset() const;
    QRect content(const QStyleOptionGroupBox& option) const;
};

} // namespace Korvane
