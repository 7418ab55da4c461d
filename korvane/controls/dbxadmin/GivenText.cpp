#include <korvane/controls/dbxadmin/GivenText.h>

#include <QLineEdit>
#include <QSignalBlocker>

namespace Korvane {

bool showGivenText(QLineEdit& box, const QString& text) {
    const bool inside = box.hasFocus();
    if (inside && box.text() == text) return false;
    const QSignalBlocker quiet(box);
    const int at = inside ? box.cursorPosition() : 0;
    box.setText(text);
    box.setCursorPosition(at);
    return true;
}

} // namespace Korvane
