#include <korvane/controls/buttons/MoveSymbol.h>

#include <QPainter>
#include <QPolygonF>

namespace Korvane {

void paintMoveSymbol(QPainter& painter, const QRect& area, MoveSymbol symbol, const QColor& colour,
                     Qt::LayoutDirection direction) {
    const bool back = symbol == MoveSymbol::First || symbol == MoveSymbol::Previous;
    const bool toTheEnd = symbol == MoveSymbol::First || symbol == MoveSymbol::Last;
    // A triangle that points to the right, and the bar that it runs into, about the middle.
    const double half = area.height() / 2.0, bar = toTheEnd ? half / 3 : 0;
    const double left = -(half + bar) / 2, tip = left + half;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(area).center());
    if (back != (direction == Qt::RightToLeft)) painter.scale(-1, 1);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(QPolygonF({{left, -half}, {tip, 0}, {left, half}}));
    if (toTheEnd) painter.drawRect(QRectF(tip, -half, bar, 2 * half));
    painter.restore();
}

} // namespace Korvane
