#include "shared/Hand.h"

#include "shared/Failure.h"

#include <QApplication>
#include <QDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QScopeGuard>
#include <QScrollArea>
#include <QTest>
#include <QWindow>

#include <vector>

namespace Apps {

namespace {

QWindow* windowOf(const QWidget& widget) {
    return widget.window()->windowHandle();
}

/// Where key presses go: to the list that is popped up, else to the window that is active.
QWindow* keyWindow() {
    if (const QWidget* popup = QApplication::activePopupWidget()) return windowOf(*popup);
    const QWidget* active = QApplication::activeWindow();
    require(active, QStringLiteral("No window is active."));
    return windowOf(*active);
}

std::vector<QScrollArea*> areasAround(const QWidget& widget) {
    std::vector<QScrollArea*> areas;
    for (QWidget* parent = widget.parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(parent)) areas.push_back(area);
    }
    return areas;
}

} // namespace

Hand::Hand() {
    QObject::connect(&mWatch, &QTimer::timeout, [this] { lookForBox(); });
    mWatch.start(20);
}

void Hand::settle() {
    rest(30);
}

void Hand::await(const std::function<bool()>& isSo, int time, const QString& otherwise) {
    require(QTest::qWaitFor(isSo, time), otherwise);
    settle();
}

void Hand::rest(int time) {
    QTest::qWait(time);
    if (const auto trouble = std::exchange(mTrouble, nullptr)) std::rethrow_exception(trouble);
}

void Hand::reach(QWidget& widget) {
    for (QScrollArea* area : areasAround(widget))
        area->ensureWidgetVisible(&widget);
}

void Hand::reach(QWidget& widget, QPoint where) {
    for (QScrollArea* area : areasAround(widget)) {
        const QPoint inside = widget.mapTo(area->widget(), where);
        const int margin = area->fontMetrics().height() / 2;
        area->ensureVisible(inside.x(), inside.y(), margin, margin);
    }
}

void Hand::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(keyWindow(), key, modifiers);
    settle();
}

void Hand::type(const QString& text) {
    for (const QChar c : text)
        QTest::keyClick(keyWindow(), c.toLatin1());
    settle();
}

void Hand::click(QWidget& widget) {
    click(widget, widget.rect().center());
}

void Hand::click(QWidget& widget, QPoint where) {
    reach(widget);
    reach(widget, where);
    QTest::mouseClick(windowOf(widget), Qt::LeftButton, {}, widget.mapTo(widget.window(), where));
    settle();
}

void Hand::doubleClick(QWidget& widget, QPoint where) {
    const QPoint inWindow = widget.mapTo(widget.window(), where);
    QTest::mouseClick(windowOf(widget), Qt::LeftButton, {}, inWindow);
    QTest::mouseDClick(windowOf(widget), Qt::LeftButton, {}, inWindow);
    settle();
}

void Hand::answering(const std::function<void()>& deed, const std::function<void(QWidget&)>& handle) {
    QWidget* const window = QApplication::activeWindow();
    require(window, QStringLiteral("No window is active."));
    mHandle = handle;
    deed();
    constexpr int patience = 3000;
    const bool came = QTest::qWaitFor([this] { return !mHandle; }, patience);
    mHandle = nullptr;
    require(came, QStringLiteral("A box should have come up."));
    settle();
    // What a window manager does; there may be none.
    window->activateWindow();
    require(QTest::qWaitForWindowActive(window), QStringLiteral("The window did not become active again."));
}

bool Hand::canDrag() {
    return QGuiApplication::platformName() == QStringLiteral("xcb");
}

void Hand::answering(const std::function<void()>& deed, const QString& text,
                     const std::function<void()>& look) {
    answering(deed, [&](QWidget& box) {
        require(qobject_cast<QInputDialog*>(&box), QStringLiteral("The box that came up asks for no text."));
        type(text);
        look();
        press(Qt::Key_Return);
    });
}

// A drag has an event loop of its own, which the move that begins it does not leave before the drop; no
// exception may leave it.
void Hand::drag(QWidget& widget, QPoint from, QPoint to, const std::function<void()>& look) {
    reach(widget, from);
    QWindow* const window = windowOf(widget);
    const auto at = [&](QPoint point) { return widget.mapTo(widget.window(), point); };
    bool dropped = false;
    QTimer::singleShot(100, [&] {
        QTest::mouseMove(window, at(to));
        try {
            look();
        } catch (...) {
            mTrouble = std::current_exception();
        }
        QTest::mouseRelease(window, Qt::LeftButton, {}, at(to));
        dropped = true;
    });
    QTest::mousePress(window, Qt::LeftButton, {}, at(from));
    const QPoint begins(QApplication::startDragDistance(), 0);
    QTest::mouseMove(window, at(from + begins));
    QTest::mouseMove(window, at(from + 2 * begins));
    require(QTest::qWaitFor([&] { return dropped; }), QStringLiteral("Nothing was dropped."));
    settle();
}

// Runs inside the box's own event loop, which no exception may leave: it is kept until the box is gone.
void Hand::lookForBox() {
    auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!box) return;
    const auto* message = qobject_cast<QMessageBox*>(box);
    const auto handle = std::exchange(mHandle, nullptr);
    mWatch.stop();
    const auto watchAgain = qScopeGuard([this] { mWatch.start(); });
    try {
        require(handle != nullptr, QStringLiteral("An unexpected box came up: ") +
                                       (message ? message->text() : box->windowTitle()));
        box->activateWindow();
        require(QTest::qWaitForWindowActive(box) &&
                    QTest::qWaitFor([box] { return box->isAncestorOf(QApplication::focusWidget()); }),
                QStringLiteral("A box did not take the focus."));
        handle(*box);
    } catch (...) {
        mTrouble = std::current_exception();
        box->reject();
    }
}

} // namespace Apps
