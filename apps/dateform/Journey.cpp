#include "dateform/Journey.h"

#include <QApplication>
#include <QMessageBox>

namespace DateForm {

using Apps::require;

void Journey::write(const QString& box, const QString& text) {
    part<QLineEdit>(box).setFocus(Qt::ShortcutFocusReason);
    hand.press(Qt::Key_A, Qt::ControlModifier);
    hand.press(Qt::Key_Delete);
    hand.type(text);
}

void Journey::enterDate() {
    part(QStringLiteral("txtAfter")).setFocus(Qt::ShortcutFocusReason);
    for (int i = 0; i < 3; ++i)
        hand.press(Qt::Key_Backtab, Qt::ShiftModifier);
}

void Journey::requireDate(const QString& wholeDate, const QString& focus) {
    require(date().wholeDate() == wholeDate,
            QStringLiteral("The date is \"%1\" and should be \"%2\".").arg(date().wholeDate(), wholeDate));
    const QWidget* focused = QApplication::focusWidget();
    require(focused && focused->objectName() == focus,
            QStringLiteral("The focus is not in %1 but in %2.")
                .arg(focus, focused ? focused->objectName() : QStringLiteral("no widget")));
}

void Journey::closeDateError(const std::function<void()>& deed, const QString& message,
                             const QString& picture) {
    hand.answering(deed, [&](QWidget& box) {
        const auto* shown = qobject_cast<QMessageBox*>(&box);
        require(shown && shown->windowTitle() == TestForm::tr("Date Error") && shown->text() == message,
                QStringLiteral("A box came up, but not \"%1\".").arg(message));
        album.add(picture);
        hand.press(Qt::Key_Return);
    });
}

} // namespace DateForm
