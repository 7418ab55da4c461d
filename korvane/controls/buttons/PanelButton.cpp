#include <korvane/controls/buttons/PanelButton.h>

#include <korvane/controls/buttons/ButtonFocus.h>
#include <korvane/controls/container/Twips.h>

#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace Korvane {

namespace {

bool isArrow(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Left || key == Qt::Key_Right;
}

} // namespace

PanelButton::PanelButton(ButtonFocus& row, QWidget* parent) : CommandButton(parent), mRow(row) {
    row.add(*this);
}

void PanelButton::setOutlined(bool on) {
    mOutlined = on;
    update();
}

void PanelButton::setSymbol(std::optional<MoveSymbol> symbol) {
    mSymbol = symbol;
    update();
}

QSize PanelButton::sizeHint() const {
    const QSize natural = CommandButton::sizeHint();
    if (mSymbol) return {natural.height() * 3 / 2, natural.height()};
    const int width = natural.width() + 2 * fontMetrics().averageCharWidth();
    return {qMin(width, Twips(*this).px(widestCaption)), natural.height()};
}

QSize PanelButton::minimumSizeHint() const {
    const QSize natural = sizeHint();
    return mSymbol ? QSize(natural.height(), natural.height()) : natural;
}

bool PanelButton::event(QEvent* event) {
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) mRow.usableChanged();
    return CommandButton::event(event);
}

void PanelButton::changeEvent(QEvent* event) {
    CommandButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) mRow.usableChanged();
}

void PanelButton::focusInEvent(QFocusEvent* event) {
    mRow.entered(*this);
    CommandButton::focusInEvent(event);
}

/// Asked for Tab, and when the button has just been disabled or hidden.
bool PanelButton::focusNextPrevChild(bool next) {
    const bool usable = isEnabled() && isVisible();
    return (!usable && mRow.passOn(*this)) || CommandButton::focusNextPrevChild(next);
}

void PanelButton::keyPressEvent(QKeyEvent* event) {
    if (mRow.take(*this, *event)) return;
    if (isArrow(event->key()))
        event->ignore();
    else
        CommandButton::keyPressEvent(event);
}

/// In a button that is too low for its font, a smaller one: of letters that are cut nothing can be read.
QFont PanelButton::captionFont() const {
    const int edges = 2, room = height() - edges;
    QFont fitting = font();
    if (fontMetrics().height() > room) fitting.setPixelSize(qMax(1, room));
    return fitting;
}

void PanelButton::initStyleOption(QStyleOptionButton* option) const {
    CommandButton::initStyleOption(option);
    if (mSymbol) option->text.clear();
}

void PanelButton::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.setFont(captionFont());
    if (mOutlined) {
        paintOutline(painter, option);
        painter.drawControl(QStyle::CE_PushButtonLabel, option);
    } else {
        painter.drawControl(QStyle::CE_PushButton, option);
    }
    if (!mSymbol) return;
    const QRect room = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    const int size = qMin(fontMetrics().ascent(), qMin(room.width(), room.height()));
    const QRect area(0, (height() - size) / 2, width(), size);
    paintMoveSymbol(painter, area, *mSymbol, option.palette.color(QPalette::ButtonText), layoutDirection());
}

void PanelButton::paintOutline(QPainter& painter, const QStyleOptionButton& option) const {
    const bool down = option.state & QStyle::State_Sunken, over = option.state & QStyle::State_MouseOver;
    const QColor face = option.palette.color(QPalette::Button);
    const bool standsOut = option.features & QStyleOptionButton::DefaultButton;
    QColor line = option.palette.color(QPalette::ButtonText);
    line.setAlphaF(standsOut ? 1.0F : 0.5F);
    painter.setPen(line);
    painter.setBrush(down ? face.darker(125) : over ? face.lighter(108) : face);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (standsOut) painter.drawRect(rect().adjusted(1, 1, -2, -2));
    if (!(option.state & QStyle::State_HasFocus)) return;
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(option);
    focus.rect = rect().adjusted(2, 2, -2, -2);
    focus.backgroundColor = face;
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

} // namespace Korvane
