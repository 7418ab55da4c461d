#include <korvane/controls/buttons/ButtonPanel.h>

#include <korvane/controls/buttons/PanelButton.h>
#include <korvane/controls/buttons/PanelFrame.h>
#include <korvane/controls/container/Twips.h>
#include <korvane/runtime/RuntimeError.h>

#include <QEvent>
#include <QStyle>

namespace Korvane {

namespace {

QString nameOf(int index) {
    return QStringLiteral("btnText%1").arg(index + 1);
}

} // namespace

ButtonPanel::ButtonPanel(int count, const QString& arrayName, QWidget* parent)
    : UserControl(parent), frame1(new PanelFrame(this)), mRow(*this) {
    frame1->setObjectName(QStringLiteral("frame1"));
    // Without a policy of its own it would have no place in a tab order. Later on it would be its proxy's.
    setFocusPolicy(Qt::TabFocus);
    for (int i = 0; i < count; ++i) {
        auto* made = new PanelButton(mRow, frame1);
        made->setObjectName(QStringLiteral("%1(%2)").arg(arrayName).arg(i));
        mButtons.push_back(made);
        connect(made, &QPushButton::clicked, this, [this, i] {
            if (!designMode()) emit btnClick(static_cast<qint16>(i));
        });
    }
}

/// The buttons still speak to the row while they are destroyed.
ButtonPanel::~ButtonPanel() {
    delete frame1;
}

PanelButton& ButtonPanel::button(int index) const {
    if (index < 0 || index >= count()) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
    return *mButtons[static_cast<std::size_t>(index)];
}

void ButtonPanel::Focus(qint16 index) {
    // A hidden one would take it when it is shown, from wherever the user is by then.
    PanelButton& wanted = button(index);
    const bool away = wanted.isHidden() && wanted.testAttribute(Qt::WA_WState_ExplicitShowHide);
    if (!away) wanted.setFocus();
}

QString ButtonPanel::caption(int index) const {
    return button(index).text();
}

void ButtonPanel::caption(int index, const QString& text) {
    showCaption(index, text);
    emit PropertyChanged(nameOf(index));
}

void ButtonPanel::showCaption(int index, const QString& text) {
    button(index).setText(text);
    updateGeometry();
}

void ButtonPanel::readCaptions(const PropertyBag& bag, const QStringList& defaults) {
    for (int i = 0; i < count(); ++i)
        showCaption(i, bag.ReadProperty(nameOf(i), defaults[i]).toString());
}

void ButtonPanel::writeCaptions(PropertyBag& bag, const QStringList& defaults) const {
    for (int i = 0; i < count(); ++i)
        bag.WriteProperty(nameOf(i), caption(i), defaults[i]);
}

void ButtonPanel::enableParts(bool on) {
    for (PanelButton* each : mButtons)
        each->setEnabled(on);
    frame1->setEnabled(on);
}

QSize ButtonPanel::inTwips() const {
    const Twips twips(*this);
    return {twips.fromPx(width()), twips.fromPx(height())};
}

/// The edges are rounded, not the size: parts that touch in twips touch in pixels.
void ButtonPanel::place(QWidget& part, const QRect& twips) const {
    const Twips scale(*this);
    const QPoint from(scale.px(twips.left()), scale.px(twips.top()));
    const QPoint to(scale.px(twips.left() + twips.width()), scale.px(twips.top() + twips.height()));
    const QRect pixels(from, QSize(to.x() - from.x(), to.y() - from.y()));
    part.setGeometry(QStyle::visualRect(layoutDirection(), part.parentWidget()->rect(), pixels));
}

void ButtonPanel::resizeEvent(QResizeEvent* event) {
    UserControl::resizeEvent(event);
    arrange();
}

void ButtonPanel::changeEvent(QEvent* event) {
    UserControl::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
        arrange();
        updateGeometry();
        break;
    default:
        break;
    }
}

} // namespace Korvane
