#pragma once

#include <QStringList>
#include <QWidget>

namespace Apps {

/// The letters that more than one of what is shown in a window answers to with Alt: menus, buttons, labels of
/// something else. One line each: "S: &Save, &Search". Captions that belong to the user are none.
QStringList doubledShortcuts(const QWidget& window);

} // namespace Apps
