#pragma once

#include <QKeyEvent>

namespace Korvane {

/// Either of the two keys that say Enter.
inline bool isEnter(const QKeyEvent& key) {
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

/// Pressed without Shift, Ctrl and the like, wherever on the keyboard.
inline bool isPlain(const QKeyEvent& key) {
    return (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

} // namespace Korvane
