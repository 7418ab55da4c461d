#include <korvane/controls/buttons/PanelFrame.h>

#include <korvane/controls/buttons/CommandButton.h>
#include <korvane/controls/container/Twips.h>

#include <QStyleOptionGroupBox>
#include <QStylePainter>

namespace Korvane {

QSize PanelFrame::minimumSizeHint() const {
    QSize all = QGroupBox::minimumSizeHint();
    all.setWidth(qMin(all.width(), Twips(*this).px(widestCaption)));
    return all.expandedTo(QWidget::minimumSizeHint());
}

void PanelFrame::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    if (autoFillBackground()) {
        const int inset = fontMetrics().averageCharWidth() / 2;
        painter.translate(inset, 0);
        option.rect.adjust(0, 0, -2 * inset, -inset);
    }
    const QRect room =
        style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents, this);
    option.text = fontMetrics().elidedText(option.text, Qt::ElideRight, room.width(), Qt::TextShowMnemonic);
    painter.drawComplexControl(QStyle::CC_GroupBox, option);
}

} // namespace Korvane
