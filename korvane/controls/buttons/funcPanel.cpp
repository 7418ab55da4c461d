#include <korvane/controls/buttons/funcPanel.h>

#include <korvane/controls/buttons/PanelButton.h>
#include <korvane/controls/container/Text.h>
#include <korvane/controls/container/Twips.h>
#include <korvane/runtime/Interaction.h>

#include <QEvent>
#include <QFontInfo>
#include <QGroupBox>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace Korvane {

namespace {

/// Of a caption on a form in that font.
double pointsOf(qint16 code, const QFont& form) {
    constexpr std::array points{8.0, 10.0, 12.0};
    constexpr double usual = 10.0;
    const double large = form.pointSizeF() > 0 ? form.pointSizeF() : QFontInfo(form).pointSizeF();
    return points.at(static_cast<std::size_t>(code)) * std::max(1.0, large / usual);
}

/// The size and the weight only: the rest follows the form.
void setFontOf(QWidget& part, double points, bool bold) {
    QFont font;
    font.setPointSizeF(points);
    font.setBold(bold);
    part.setFont(font);
}

} // namespace

funcPanel::funcPanel(QWidget* parent) : ButtonPanel(most, QStringLiteral("cmdButton"), parent) {
    frame().setTitle(QStringLiteral("Func Btn"));
    for (int i = 0; i < most; ++i)
        showCaption(i, QString::number(i + 1));
    showFonts();
    resize(sizeHint());
    arrange();
}

void funcPanel::setButtonCount(int count) {
    if (const char* why = refusal(count)) {
        Interaction::current().MsgBox(utf8(tr(why)), MsgBoxStyle::OkOnly, {});
        return;
    }
    if (size() != mArranged) arrange();
    const int before = std::exchange(mCount, static_cast<qint16>(count));
    if (count > before) {
        mColumn.divide(count);
        for (int i = 0; i < count; ++i)
            button(i).show();
        placeAll();
    }
    {
        const QScopedValueRollback later(mArrangesLater, true);
        resize(width(), Twips(*this).px(mColumn.heightFor(count)));
    }
    QMetaObject::invokeMethod(this, &funcPanel::arrange, Qt::QueuedConnection);
    updateGeometry();
    emit PropertyChanged(QStringLiteral("buttonCount"));
}

/// A form that is being loaded has given the control its size before.
void funcPanel::givenButtonCount(int count) {
    const QSize given = size();
    setButtonCount(count);
    if (testAttribute(Qt::WA_WState_Polished)) return;
    resize(given);
    arrange();
}

/// To be translated where the user reads it; null for a count that will do.
const char* funcPanel::refusal(int count) {
    if (count < 1) return QT_TR_NOOP("buttonCount must be at least 1.");
    if (count > most) return QT_TR_NOOP("buttonCount must not be greater than 5.");
    return nullptr;
}

void funcPanel::setButtonEnabled(int index, bool on) {
    if (index == most) return;
    PanelButton& changed = button(index);
    mEnabled[static_cast<std::size_t>(index)] = on;
    changed.setEnabled(on);
    emit PropertyChanged(QStringLiteral("btn%1Enabled").arg(index + 1));
}

void funcPanel::btnFontBold(qint16 index, bool bold) {
    if (index != most) setBold(index, bold);
}

void funcPanel::setBold(int index, bool bold) {
    setFontOf(button(index), pointsOf(mButtonFontSize, font()), bold);
    updateGeometry();
}

void funcPanel::showBackColour() {
    setBackColour(frame(), mBackColor, palette());
}

void funcPanel::showStyle() {
    for (int i = 0; i < most; ++i)
        button(i).setOutlined(mStyle == Flat);
}

void funcPanel::showFonts() {
    setFontOf(frame(), pointsOf(mFrameFontSize, font()), false);
    for (int i = 0; i < most; ++i)
        setBold(i, button(i).font().bold());
}

/// The resize of a count that was set shows the buttons as they are until the next turn of the event loop.
void funcPanel::resizeEvent(QResizeEvent* event) {
    if (!mArrangesLater) ButtonPanel::resizeEvent(event);
}

void funcPanel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) showFonts();
    if (event->type() == QEvent::PaletteChange) showBackColour();
    ButtonPanel::changeEvent(event);
}

void funcPanel::arrange() {
    mArranged = size();
    const Twips twips(*this);
    const QSize least = ButtonColumn::smallest;
    if (width() < twips.px(least.width()) || height() < twips.px(least.height())) return;
    mColumn.fit(inTwips().expandedTo(least), mCount); // which may be a few less, a pixel being many
    for (int i = 0; i < most; ++i)
        button(i).setVisible(i < mCount);
    placeAll();
}

void funcPanel::placeAll() {
    place(frame(), mColumn.frame);
    for (int i = 0; i < most; ++i)
        place(button(i), mColumn.buttons[static_cast<std::size_t>(i)]);
}

QSize funcPanel::sizeFor(int buttonHeight) const {
    int widest = 0;
    for (int i = 0; i < mCount; ++i)
        widest = std::max(widest, button(i).sizeHint().width());
    const Twips twips(*this);
    const QSize needed = ButtonColumn::sizeFor({twips.fromPx(widest), twips.fromPx(buttonHeight)}, mCount);
    return {std::max(twips.px(needed.width()), frame().minimumSizeHint().width()), twips.px(needed.height())};
}

QSize funcPanel::sizeHint() const {
    return sizeFor(std::max(button(0).sizeHint().height(), Twips(*this).px(360)));
}

QSize funcPanel::minimumSizeHint() const {
    return sizeFor(button(0).fontMetrics().height() + 2);
}

} // namespace Korvane
