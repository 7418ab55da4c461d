#pragma once

#include <QPoint>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <exception>
#include <functional>

namespace Apps {

/// The hand of a user: its keys and clicks take the way of real ones, through the window to whatever has the
/// focus or lies under the pointer.
///
/// A message box that nobody waits for is closed and makes the next call fail with its text.
class Hand {
  public:
    Hand();

    /// Scrolls to a widget, or to the point of it that is to be clicked.
    static void reach(QWidget& widget);
    static void reach(QWidget& widget, QPoint where);

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString& text);
    void click(QWidget& widget);
    void click(QWidget& widget, QPoint where);
    void doubleClick(QWidget& widget, QPoint where);

    /// Does something that must bring up a box, and handles that box. Fails when none comes up.
    void answering(const std::function<void()>& deed, const std::function<void(QWidget& box)>& handle);

    /// The same for an input box: types a text into it, lets `look` see it, and accepts it.
    void answering(
        const std::function<void()>& deed, const QString& text, const std::function<void()>& look = [] {});

    /// Whether the platform lets a drag be driven by the events of a window: one without a screen ends it at
    /// once.
    static bool canDrag();
    /// Drags what lies at one point to another one, and lets `look` see it there before it is dropped.
    /// Only where `canDrag`.
    void drag(QWidget& widget, QPoint from, QPoint to, const std::function<void()>& look);

    /// Lets the application do what it has to do.
    void settle();

    /// The same for longer, in milliseconds.
    void rest(int time);

    /// The same until something is so. Fails when it is not in time, also in milliseconds.
    void await(const std::function<bool()>& isSo, int time, const QString& otherwise);

  private:
    void lookForBox();

    QTimer mWatch;
    std::function<void(QWidget&)> mHandle;
    std::exception_ptr mTrouble;
};

} // namespace Apps
