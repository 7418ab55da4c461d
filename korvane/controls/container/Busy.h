#pragma once

class QWidget;

namespace Korvane {

/// The hourglass while it lives; the pointer before is restored.
class Hourglass {
  public:
    Hourglass();
    ~Hourglass();
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

/// Keeps a window from painting while it lives.
class PaintLock {
  public:
    /// The widget has to outlive it.
    explicit PaintLock(QWidget& widget);
    ~PaintLock();
    PaintLock(const PaintLock&) = delete;
    PaintLock& operator=(const PaintLock&) = delete;

  private:
    QWidget& mWidget;
    bool mWasEnabled;
};

} // namespace Korvane
