#include <korvane/controls/container/SendKeys.h>

#include <QApplication>
#include <QKeyEvent>
#include <QString>
#include <QWidget>

#include <deque>

namespace Korvane {

namespace {

struct Key {
    int code;
    QString text;
};

std::deque<Key>& waiting() {
    static std::deque<Key> keys;
    return keys;
}

void pressNext() {
    if (waiting().empty()) return;
    const Key key = waiting().front();
    waiting().pop_front();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QWidget* target = QApplication::focusWidget();
        if (!target) return;
        QKeyEvent event(type, key.code, Qt::NoModifier, key.text);
        QCoreApplication::sendEvent(target, &event);
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
    for (qsizetype at = 0; at < keys.size();) {
        waiting().push_back(takeKey(keys, at));
        QMetaObject::invokeMethod(qApp, &pressNext, Qt::QueuedConnection);
    }
}

void discardSentKeys() {
    waiting().clear();
}

} // namespace Korvane
