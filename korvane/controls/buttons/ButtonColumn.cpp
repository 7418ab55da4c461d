#include <korvane/controls/buttons/ButtonColumn.h>

namespace Korvane {

namespace {

constexpr QSize aroundFrame(10, 50);
constexpr QSize aroundButtons(300, 600);
constexpr int aroundButtonsWhenDivided = 500;
constexpr int firstTop = 345;
constexpr int gap = 40;
constexpr int belowLast = 350;
constexpr int outOfSight = 10000;

int below(const QRect& rect) {
    return rect.top() + rect.height();
}

} // namespace

void ButtonColumn::fit(QSize control, int count) {
    frame.setSize(control - aroundFrame);
    const int width = frame.width() - aroundButtons.width();
    for (std::size_t i = 0; i < most; ++i) {
        if (static_cast<int>(i) >= count) {
            buttons[i].moveTop(below(frame) + outOfSight);
            continue;
        }
        buttons[i].setWidth(width);
        buttons[i].moveLeft((frame.width() - width) / 2);
    }
    stack(count, (frame.height() - aroundButtons.height()) / count);
}

void ButtonColumn::divide(int count) {
    stack(count, (frame.height() - aroundButtonsWhenDivided) / count);
}

void ButtonColumn::stack(int count, int height) {
    int top = firstTop;
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        buttons[i].moveTop(top);
        buttons[i].setHeight(height);
        top += height + gap;
    }
}

int ButtonColumn::heightFor(int count) const {
    return below(buttons.at(static_cast<std::size_t>(count - 1))) + belowLast;
}

QSize ButtonColumn::sizeFor(QSize button, int count) {
    return QSize(button.width(), button.height() * count) + aroundButtons + aroundFrame;
}

} // namespace Korvane
