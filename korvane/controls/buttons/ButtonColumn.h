#pragma once

#include <QRect>
#include <QSize>

#include <array>

namespace Korvane {

/// Where the frame of a function button panel and its buttons are, in twips: the frame in the control, the
/// buttons in the frame.
///
/// There are two ways to divide the frame's height, and they are not the same: a resized control leaves 600
/// twips of it to the caption and the edges, a raised count of buttons 500.
struct ButtonColumn {
    static constexpr int most = 5;
    /// A smaller control is not followed.
    static constexpr QSize smallest{350, 650};

    QRect frame{5, 25, 0, 0};
    std::array<QRect, most> buttons{};

    /// Follows the control.
    void fit(QSize control, int count);
    /// Makes room for more buttons in the frame as it is; their widths stay.
    void divide(int count);
    /// The height of a control that ends below button `count` - 1.
    int heightFor(int count) const;

    /// The size of a control for buttons of that size, the inverse of `fit`.
    static QSize sizeFor(QSize button, int count);

  private:
    void stack(int count, int height);
};

} // namespace Korvane
