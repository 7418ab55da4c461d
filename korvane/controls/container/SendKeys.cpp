#include <korvane/controls/container/SendKeys.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QString>
#include <QWidget>

#include <deque>

namespace Korvane {

namespace {

struct Key {
    int code;
    QString text;
    QPointer<QWidget> window = QApplication::activeWindow();
};

std::deque<Key>& waiting() {
    static std::deque<Key> keys;
    return keys;
}

void press(const Key& key) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QWidget* target = QApplication::focusWidget();
        if (!target || target->window() != key.window) return;
        QKeyEvent event(type, key.code, Qt::NoModifier, key.text);
        QCoreApplication::sendEvent(target, &event);
    }
}

/// A key may let events run while the focus that it moves is still on its way: the next one waits for it.
void pressWaiting() {
    static bool pressing = false;
    if (pressing) return;
    const QScopedValueRollback busy(pressing, true);
    while (!waiting().empty()) {
        const Key key = waiting().front();
        waiting().pop_front();
        press(key);
    }
}

Key takeKey(const QString& keys, qsizetype& at) {
    static const QString tab = QStringLiteral("{TAB}");
    if (keys.mid(at, tab.size()).compare(tab, Qt::CaseInsensitive) == 0) {
        at += tab.size();
        return {Qt::Key_Tab, QStringLiteral("\t")};
    }
    const QChar character = keys.at(at++);
    return {character.toUpper().unicode(), QString(character)};
}

} // namespace

void sendKeys(const QString& keys) {
    for (qsizetype at = 0; at < keys.size();)
        waiting().push_back(takeKey(keys, at));
    QMetaObject::invokeMethod(qApp, &pressWaiting, Qt::QueuedConnection);
}

void discardSentKeys() {
    waiting().clear();
}

} // namespace Korvane
