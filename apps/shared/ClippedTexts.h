#pragma once

#include <QStringList>
#include <QWidget>

namespace Apps {

/// The texts in a window that do not fit where they stand: of labels, buttons, boxes to check, group boxes,
/// tabs, the headings of tables, and what an empty line says about itself. One line each, with the name of
/// the widget. What is scrolled away, and what belongs to the user (cells, entries), is left out.
///
///     const QStringList clipped = clippedTexts(window);      // "QPushButton cmdSave: Speichern"
QStringList clippedTexts(const QWidget& window);

} // namespace Apps
