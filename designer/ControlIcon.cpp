#include "designer/ControlIcon.h"

#include <QPainter>
#include <QPixmap>

#include <array>
#include <vector>

namespace Designer {

namespace {

enum class Shape { Outline, Filled, Left, Right };

/// In a grid of 22 by 22.
struct Stroke {
    Shape shape;
    QRectF where;
};

struct Drawing {
    std::string_view name;
    std::vector<Stroke> strokes;
};

const std::array<Drawing, 5>& drawings() {
    using enum Shape;
    static const std::array<Drawing, 5> all{{{"ucNIPPanel",
                                              {{Outline, {1, 5, 20, 16}},
                                               {Filled, {1, 1, 7, 4}},
                                               {Outline, {8, 1, 6, 4}},
                                               {Filled, {4, 9, 5, 2}},
                                               {Outline, {11, 8, 8, 4}},
                                               {Filled, {4, 15, 5, 2}},
                                               {Outline, {11, 14, 8, 4}}}},
                                             {"axDate",
                                              {{Outline, {1, 7, 5, 8}},
                                               {Outline, {7, 7, 5, 8}},
                                               {Outline, {13, 7, 8, 8}},
                                               {Filled, {3, 9, 1, 4}},
                                               {Filled, {9, 9, 1, 4}},
                                               {Filled, {15, 9, 1, 4}},
                                               {Filled, {18, 9, 1, 4}}}},
                                             {"funcPanel",
                                              {{Outline, {2, 2, 18, 18}},
                                               {Filled, {5, 5, 12, 3}},
                                               {Filled, {5, 10, 12, 3}},
                                               {Filled, {5, 15, 12, 3}}}},
                                             {"movebtn",
                                              {{Outline, {1, 5, 20, 12}},
                                               {Filled, {3, 8, 1, 6}},
                                               {Left, {4, 8, 3, 6}},
                                               {Left, {8, 8, 3, 6}},
                                               {Right, {11, 8, 3, 6}},
                                               {Right, {15, 8, 3, 6}},
                                               {Filled, {18, 8, 1, 6}}}},
                                             {"dbxadmin",
                                              {{Outline, {1, 1, 20, 20}},
                                               {Outline, {3, 4, 7, 3}},
                                               {Outline, {3, 9, 7, 3}},
                                               {Outline, {12, 4, 7, 10}},
                                               {Filled, {14, 6, 3, 1}},
                                               {Filled, {14, 8, 3, 1}},
                                               {Filled, {14, 10, 3, 1}},
                                               {Left, {3, 15, 3, 4}},
                                               {Right, {7, 15, 3, 4}},
                                               {Filled, {13, 16, 6, 3}}}}}};
    return all;
}

void paint(QPainter& painter, const Stroke& stroke) {
    const QRectF& r = stroke.where;
    const auto triangle = [&](qreal tip, qreal back) {
        painter.drawPolygon(QPolygonF{{tip, r.center().y()}, {back, r.top()}, {back, r.bottom()}});
    };
    const QColor ink(0x20, 0x4a, 0x87);
    painter.setPen(stroke.shape == Shape::Outline ? QPen(ink, 1) : QPen(Qt::NoPen));
    painter.setBrush(stroke.shape == Shape::Outline ? QBrush(Qt::white) : QBrush(ink));
    switch (stroke.shape) {
    case Shape::Outline:
        return painter.drawRect(r.adjusted(0.5, 0.5, -0.5, -0.5));
    case Shape::Filled:
        return painter.drawRect(r);
    case Shape::Left:
        return triangle(r.left(), r.right());
    case Shape::Right:
        return triangle(r.right(), r.left());
    }
}

QPixmap paint(const Drawing& drawing, int size) {
    constexpr int grid = 22;
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(double(size) / grid, double(size) / grid);
    for (const Stroke& stroke : drawing.strokes)
        paint(painter, stroke);
    return pixmap;
}

} // namespace

QIcon controlIcon(std::string_view name) {
    QIcon icon;
    for (const Drawing& drawing : drawings())
        for (const int size : {22, 44, 88})
            if (drawing.name == name) icon.addPixmap(paint(drawing, size));
    return icon;
}

} // namespace Designer
