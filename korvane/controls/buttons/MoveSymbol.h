#pragma once

#include <Qt>

class QColor;
class QPainter;
class QRect;

namespace Korvane {

/// What a record-move button shows in place of the caption that it has from the start.
enum class MoveSymbol { First, Previous, Next, Last };

/// Paints it in the middle of `area`, as high as `area`; where one reads from the right, mirrored.
void paintMoveSymbol(QPainter& painter, const QRect& area, MoveSymbol symbol, const QColor& colour,
                     Qt::LayoutDirection direction);

} // namespace Korvane
