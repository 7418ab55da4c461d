#pragma once

#include <QGroupBox>

namespace Korvane {

/// The frame of a button panel. A caption that has no room is shortened; where the frame has a back colour of
/// its own, line and caption stand a little inside of it.
class PanelFrame : public QGroupBox {
  public:
    using QGroupBox::QGroupBox;

    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Korvane
