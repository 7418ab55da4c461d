#pragma once

#include <QObject>

namespace Korvane {

/// From the press of Enter that clicked a button until it is let go: what the key repeats reaches nothing.
/// The click may have brought up a box whose default button the user has not read yet, or may have passed the
/// focus on. Deletes itself.
class HeldEnter : public QObject {
  public:
    HeldEnter();
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace Korvane
