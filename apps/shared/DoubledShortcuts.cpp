#include "shared/DoubledShortcuts.h"

#include <QAbstractButton>
#include <QAction>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QMenuBar>

namespace Apps {

namespace {

/// The texts of a widget that go by an underlined letter.
QStringList mnemonicTexts(const QWidget& widget) {
    QStringList texts;
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        if (label->buddy() && label->textFormat() != Qt::PlainText) texts << label->text();
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        if (!button->shortcut().isEmpty()) texts << button->text();
    } else if (const auto* bar = qobject_cast<const QMenuBar*>(&widget)) {
        for (const QAction* menu : bar->actions())
            texts << menu->text();
    }
    return texts;
}

} // namespace

QStringList doubledShortcuts(const QWidget& window) {
    QMap<QString, QStringList> users;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window) || !widget->isEnabled()) continue;
        for (const QString& text : mnemonicTexts(*widget)) {
            const QKeySequence key = QKeySequence::mnemonic(text);
            if (!key.isEmpty()) users[key.toString()] << text;
        }
    }
    QStringList doubled;
    for (auto user = users.cbegin(); user != users.cend(); ++user) {
        if (user->size() > 1)
            doubled << user.key().section(u'+', -1) + QStringLiteral(": ") + user->join(QStringLiteral(", "));
    }
    return doubled;
}

} // namespace Apps
