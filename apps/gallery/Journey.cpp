#include "gallery/Journey.h"

#include "gallery/PropertyModel.h"

#include <QTableView>

namespace Gallery {

using Apps::require;

void Journey::turnTo(const QString& className) {
    for (int tries = window.count(); window.page().control().objectName() != className; --tries) {
        require(tries > 0, QStringLiteral("There is no page of %1.").arg(className));
        hand.press(Qt::Key_Tab, Qt::ControlModifier);
    }
}

void Journey::goTo(const QString& property) {
    auto& table = part<QTableView>(QStringLiteral("lstProperties"));
    table.setFocus(Qt::ShortcutFocusReason);
    hand.press(Qt::Key_Home, Qt::ControlModifier);
    hand.press(Qt::Key_Right);
    for (int row = 0; table.currentIndex().siblingAtColumn(PropertyModel::Name).data() != property; ++row) {
        require(row < table.model()->rowCount(), QStringLiteral("There is no property %1.").arg(property));
        hand.press(Qt::Key_Down);
    }
}

void Journey::set(const QString& property, const QString& value) {
    goTo(property);
    hand.press(Qt::Key_F2);
    hand.press(Qt::Key_A, Qt::ControlModifier);
    hand.type(value);
    hand.press(Qt::Key_Return);
}

void Journey::push(const QString& button) {
    part(button).setFocus(Qt::ShortcutFocusReason);
    hand.press(Qt::Key_Space);
}

void Journey::requireProperty(const char* name, const QVariant& value) {
    const QVariant is = window.page().control().property(name);
    require(is == value, QStringLiteral("%1 is \"%2\" and should be \"%3\".")
                             .arg(QLatin1String(name), is.toString(), value.toString()));
}

} // namespace Gallery
