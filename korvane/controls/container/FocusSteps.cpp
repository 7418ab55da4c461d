#include <korvane/controls/container/FocusSteps.h>

#include <korvane/controls/container/SendKeys.h>

#include <QApplication>
#include <QFocusEvent>
#include <QMenuBar>
#include <QThread>
#include <QTimer>
#include <QVariant>

namespace Korvane {

namespace {

/// What is about to get the focus, while the part that has it is still at its last steps. Should the focus be
/// taken back, it is kept from hearing that it lost what it never had.
class Successor : public QObject {
  public:
    explicit Successor(QWidget* widget) {
        if (widget) widget->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::FocusIn) mArrived = true;
        return event->type() == QEvent::FocusOut && !mArrived;
    }

  private:
    bool mArrived = false;
};

/// The press of the mouse that asked for the focus does nothing else either, up to its release. It comes once
/// the boxes that the refusal has brought up are gone; what they get themselves is theirs.
class SwallowedPress : public QObject {
  public:
    SwallowedPress() : QObject(qApp), mLevel(thread()->loopLevel()) {
        qApp->installEventFilter(this);
        // There is none after a host's own call for the focus.
        connect(&mPatience, &QTimer::timeout, this, [this] {
            if (!mPressed && !isBelow()) delete this;
        });
        mPatience.start(50);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!watched->isWidgetType() || isBelow()) return false;
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            mPressed = true;
            if (QGuiApplication::mouseButtons() == Qt::NoButton) end(); // released into such a box
            return true;
        case QEvent::MouseButtonRelease:
            end();
            return true;
        default:
            return false;
        }
    }

  private:
    bool isBelow() const { return thread()->loopLevel() > mLevel; }
    void end() {
        qApp->removeEventFilter(this);
        deleteLater();
    }

    int mLevel;
    QTimer mPatience;
    bool mPressed = false;
};

bool isOfWindow(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

} // namespace

bool causesValidation(const QWidget& control) {
    for (const QWidget* widget = &control; widget; widget = widget->parentWidget()) {
        const QVariant says = widget->property("CausesValidation");
        if (says.isValid()) return says.toBool();
        if (widget->isWindow()) break;
    }
    return true;
}

FocusSteps::FocusSteps(QWidget& control, Handler& handler) : mControl(control), mHandler(handler) {
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* now) { focusMoved(now); });
}

void FocusSteps::add(QWidget& part) {
    part.installEventFilter(this);
}

bool FocusSteps::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::FocusIn && event->type() != QEvent::FocusOut) return false;
    auto& part = *static_cast<QWidget*>(watched);
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    return event->type() == QEvent::FocusIn ? focusIn(part, reason) : focusOut(part, reason);
}

/// True when the part is not to hear of it: it never lost the focus, or has passed it on, or is gone.
bool FocusSteps::focusIn(QWidget& part, Qt::FocusReason reason) {
    if (mStaying) return true;
    if (mPart == &part && isOfWindow(reason)) return false;
    const QPointer<FocusSteps> self = this;
    if (!mInside) {
        mInside = true;
        mHandler.enterFocus(reason);
        if (!self) return true;
    }
    if (!part.hasFocus()) return true;
    mPart = &part;
    mHandler.gotFocus(part);
    return !self;
}

bool FocusSteps::focusOut(QWidget& part, Qt::FocusReason reason) {
    if (mPart != &part || isOfWindow(reason)) return false;
    QWidget* next = QApplication::focusWidget();
    const Successor successor(next);
    const bool asked = next && part.isVisible() && part.isEnabled() &&
                       (mControl.isAncestorOf(next) || causesValidation(*next));
    const QPointer<FocusSteps> self = this;
    if (asked && !mHandler.accepts(part)) {
        stay(part, reason);
        return true;
    }
    leave(part);
    return !self || part.hasFocus();
}

void FocusSteps::stay(QWidget& part, Qt::FocusReason reason) {
    mStaying = true;
    part.setFocus(Qt::OtherFocusReason);
    mStaying = false;
    if (reason == Qt::MouseFocusReason) new SwallowedPress;
    discardSentKeys();
    if (mRefusing) return; // it is being told, and whoever hears of it wants the focus elsewhere
    const QPointer<FocusSteps> self = this;
    mRefusing = true;
    mHandler.refused(part);
    if (self) mRefusing = false;
}

void FocusSteps::leave(QWidget& part) {
    const QPointer<FocusSteps> self = this;
    mPart = nullptr;
    mHandler.lostFocus(part);
    if (!self || !mInside) return;
    // Not the application's: a box that told of a refusal may have left no window active as yet.
    const QWidget* now = mControl.window()->focusWidget();
    if (now && mControl.isAncestorOf(now)) return;
    mInside = false;
    mHandler.exitFocus();
}

/// The host may move the focus while another window is in front: nothing loses it then, and the move shows
/// when the window is back.
void FocusSteps::focusMoved(const QWidget* now) {
    if (!mInside || !mPart || !now || now->window() != mControl.window() || mControl.isAncestorOf(now))
        return;
    if (qobject_cast<const QMenuBar*>(now)) return;
    leave(*mPart);
}

} // namespace Korvane
