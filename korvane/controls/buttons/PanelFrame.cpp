#include <korvane/controls/buttons/PanelFrame.h>

#include <korvane/controls/buttons/CommandButton.h>
#include <korvane/controls/buttons/WholeCaption.h>
#include <korvane/controls/container/Twips.h>

#include <QHelpEvent>
#include <QStyleOptionGroupBox>
#include <QStylePainter>

namespace Korvane {

QSize PanelFrame::minimumSizeHint() const {
    QSize all = QGroupBox::minimumSizeHint();
    all.setWidth(qMin(all.width(), Twips(*this).px(widestCaption)));
    return all.expandedTo(QWidget::minimumSizeHint());
}

bool PanelFrame::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty()) return QGroupBox::event(event);
    const auto& asked = static_cast<QHelpEvent&>(*event);
    const QStyleOptionGroupBox option = shownOption();
    if (option.text == title() || asked.y() >= content(option).top()) return QGroupBox::event(event);
    showWholeCaption(asked, title(), *this);
    return true;
}

QRect PanelFrame::content(const QStyleOptionGroupBox& option) const {
    return style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents, this);
}

QStyleOptionGroupBox PanelFrame::shownOption() const {
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    if (autoFillBackground()) option.rect.adjust(0, 0, -2 * inset(), -inset());
    option.text =
        fontMetrics().elidedText(option.text, Qt::ElideRight, content(option).width(), Qt::TextShowMnemonic);
    return option;
}

int PanelFrame::inset() const {
    return fontMetrics().averageCharWidth() / 2;
}

void PanelFrame::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    if (autoFillBackground()) painter.translate(inset(), 0);
    painter.drawComplexControl(QStyle::CC_GroupBox, shownOption());
}

} // namespace Korvane
