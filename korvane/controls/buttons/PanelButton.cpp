#include <korvane/controls/buttons/PanelButton.h>

#include <korvane/controls/buttons/ButtonFocus.h>

#include <QFocusEvent>
#include <QHelpEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QToolTip>

namespace Korvane {

namespace {

bool isArrow(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Left || key == Qt::Key_Right;
}

} // namespace

PanelButton::PanelButton(ButtonFocus& row, QWidget* parent) : QPushButton(parent), mRow(row) {
    setAutoDefault(false);
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
    const QSize natural = QPushButton::sizeHint();
    if (mSymbol) return {natural.height() * 3 / 2, natural.height()};
    return natural + QSize(2 * fontMetrics().averageCharWidth(), 0);
}

bool PanelButton::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::Shortcut:
        setFocus(Qt::ShortcutFocusReason);
        return !hasFocus() || QPushButton::event(event);
    case QEvent::ToolTip:
        if (!toolTip().isEmpty()) break;
        showWholeCaption(static_cast<QHelpEvent*>(event)->globalPos());
        return true;
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        mRow.usableChanged();
        break;
    default:
        break;
    }
    return QPushButton::event(event);
}

void PanelButton::showWholeCaption(const QPoint& at) {
    QStyleOptionButton option;
    initStyleOption(&option);
    if (option.text != text() && !mSymbol) QToolTip::showText(at, text().remove(u'&'), this);
}

void PanelButton::changeEvent(QEvent* event) {
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) mRow.usableChanged();
}

/// A dialog that has no default button of its own takes the first one that may become it by itself: this one
/// may only while it has the focus.
void PanelButton::focusInEvent(QFocusEvent* event) {
    mRow.entered(*this);
    setAutoDefault(true);
    QPushButton::focusInEvent(event);
}

void PanelButton::focusOutEvent(QFocusEvent* event) {
    QPushButton::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason) setAutoDefault(false);
}

/// Asked for Tab, and when the button has just been disabled or hidden.
bool PanelButton::focusNextPrevChild(bool next) {
    const bool usable = isEnabled() && isVisible();
    return (!usable && mRow.passOn(*this)) || QPushButton::focusNextPrevChild(next);
}

void PanelButton::keyPressEvent(QKeyEvent* event) {
    if (mRow.take(*this, *event)) return;
    if (isArrow(event->key()))
        event->ignore();
    else
        QPushButton::keyPressEvent(event);
}

/// In a button that is too low for its font, a smaller one: of letters that are cut nothing can be read.
QFont PanelButton::fittingFont() const {
    const int edges = 2, room = height() - edges;
    QFont fitting = font();
    if (fontMetrics().height() > room) fitting.setPixelSize(qMax(1, room));
    return fitting;
}

void PanelButton::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    option->fontMetrics = QFontMetrics(fittingFont());
    const QRect room = style()->subElementRect(QStyle::SE_PushButtonContents, option, this);
    option->text = mSymbol ? QString()
                           : option->fontMetrics.elidedText(option->text, Qt::ElideRight, room.width(),
                                                            Qt::TextShowMnemonic);
}

void PanelButton::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.setFont(fittingFont());
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
    if (!(option.state & QStyle::State_HasFocus)) return;
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(option);
    focus.rect = rect().adjusted(2, 2, -2, -2);
    focus.backgroundColor = face;
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

} // namespace Korvane
