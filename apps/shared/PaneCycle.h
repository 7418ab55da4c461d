#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <vector>

namespace Apps {

/// Goes round the panes of a window by key: each gets the focus back where it was last.
class PaneCycle : public QObject {
    Q_OBJECT

  public:
    /// The panes in their order. One that lies inside another counts for itself, and comes after it.
    PaneCycle(std::vector<QWidget*> panes, QObject* parent);

    void next() { step(1); }
    void previous() { step(-1); }

  private:
    int paneOf(const QWidget* widget) const;
    void remember(QWidget* now);
    void step(int by);
    bool enter(int pane);

    std::vector<QWidget*> mPanes;
    std::vector<QPointer<QWidget>> mLast;
};

} // namespace Apps
