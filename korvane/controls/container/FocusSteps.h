#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace Korvane {

/// Whether a control asks that what the user leaves for its sake is valid: its property "CausesValidation",
/// or that of the nearest control around it that has one. True unless one says otherwise. A host sets it on
/// its Cancel or Help button:
///
///     cancel->setProperty("CausesValidation", false);
bool causesValidation(const QWidget& control);

/// The steps of a control that is made of several parts, as the focus comes to it, moves in it and goes:
///
///     enterFocus, gotFocus(month)            the focus comes
///     lostFocus(month), gotFocus(day)        it moves on
///     lostFocus(day), exitFocus              it goes
///
/// Before a part loses the focus to something that asks for validation, as every other part does, it is asked
/// (`accepts`). If it refuses, the focus stays: what would have got it hears nothing of it, neither does it
/// hear the press of the mouse that asked for it, and keys that are still to be sent are thrown away.
/// `refused` follows, once: while it is being told, another attempt fails in silence.
///
/// Another window in front, a menu or the menu bar is no leaving. A part that is hidden or disabled is not
/// asked.
class FocusSteps : public QObject {
  public:
    /// What the control does at each step. Any of them may delete the control.
    class Handler {
      public:
        virtual ~Handler() = default;
        /// The control has got the focus, by one of its parts. May pass it on to another one, which gets it
        /// in its place.
        virtual void enterFocus(Qt::FocusReason reason) = 0;
        /// The focus has left the control.
        virtual void exitFocus() = 0;
        /// A part has got it.
        virtual void gotFocus(QWidget& part) = 0;
        /// Whether the focus may leave a part; false keeps it there.
        virtual bool accepts(const QWidget& part) = 0;
        /// It was kept there: the place to say why.
        virtual void refused(QWidget& part) = 0;
        /// May give the focus back to the part (`setFocus`): what would have got it hears nothing of it, and
        /// `gotFocus(part)` is the next step.
        virtual void lostFocus(QWidget& part) = 0;
    };

    /// Tells the handler the steps of the control. Both have to outlive it.
    FocusSteps(QWidget& control, Handler& handler);

    /// A part of the control, one that is inside it.
    void add(QWidget& part);

    /// Between `enterFocus` and `exitFocus`.
    bool isInside() const { return mInside; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool focusIn(QWidget& part, Qt::FocusReason reason);
    bool focusOut(QWidget& part, Qt::FocusReason reason);
    void stay(QWidget& part, Qt::FocusReason reason);
    void leave(QWidget& part);
    void focusMoved(const QWidget* now);

    QWidget& mControl;
    Handler& mHandler;
    QPointer<QWidget> mPart; ///< the part that has the focus
    bool mInside = false;
    bool mStaying = false;
    bool mRefusing = false;
};

} // namespace Korvane
