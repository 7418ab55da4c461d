#pragma once

#include <korvane/controls/nippanel/EntryControl.h>
#include <korvane/controls/nippanel/PageColumns.h>

#include <QSize>
#include <QString>

#include <memory>
#include <string>
#include <vector>

class QFontMetrics;
class QLabel;
class QWidget;

namespace Korvane {

struct DisplayType;

/// A field as it stands on its page.
struct PageCell {
    std::string fieldName;
    const DisplayType* type = nullptr;
    int row = 0;
    int column = 1; ///< 1, or 2 for a comment beside the first column's field of the same row
    QString caption;
    CaptionWidths width; ///< in the label's font
    QLabel* label = nullptr;
    std::unique_ptr<EntryControl> entry;
};

/// Measures a caption, which is new or whose font has changed.
void measureCaption(PageCell& cell, const QFontMetrics& font);

/// Places labels and entries for a viewport of a size, rows from top to bottom; returns the height that they
/// need, in pixels.
int placeCells(const std::vector<PageCell>& cells, const QWidget& page, QSize viewport);

} // namespace Korvane
