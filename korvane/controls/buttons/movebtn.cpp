#include <korvane/controls/buttons/movebtn.h>

#include <korvane/controls/buttons/MoveCaption.h>
#include <korvane/controls/buttons/PanelButton.h>
#include <korvane/controls/container/Twips.h>

#include <QGroupBox>

#include <algorithm>

namespace Korvane {

namespace {

constexpr QSize aroundFrame(150, 100);
constexpr QSize aroundButtons(175, 325);
constexpr QPoint framePlace(75, 50);
constexpr QPoint firstButton(87, 280);

} // namespace

movebtn::movebtn(QWidget* parent) : ButtonPanel(4, QStringLiteral("cmdMove"), parent) {
    frame().setTitle(QStringLiteral("Move Buttons"));
    for (int i = 0; i < count(); ++i)
        movebtn::showCaption(i, moveCaptions()[i]);
    resize(sizeHint());
    movebtn::arrange();
}

void movebtn::showCaption(int index, const QString& text) {
    showMoveCaption(button(index), index, text);
    updateGeometry();
}

QString movebtn::Caption() const {
    return frame().title();
}

void movebtn::Caption(const QString& text) {
    frame().setTitle(text);
    updateGeometry();
    emit PropertyChanged(QStringLiteral("Caption"));
}

bool movebtn::Enabled() const {
    return !frame().testAttribute(Qt::WA_ForceDisabled);
}

void movebtn::Enabled(bool on) {
    enableParts(on);
    emit PropertyChanged(QStringLiteral("Enabled"));
}

void movebtn::InitProperties() {
    Caption(QStringLiteral("Move Buttons"));
    for (int i = 0; i < count(); ++i)
        caption(i, moveCaptions()[i]);
    Enabled(true);
}

void movebtn::ReadProperties(const PropertyBag& bag) {
    readCaptions(bag, moveCaptions());
    frame().setTitle(bag.ReadProperty("Caption", "Mover Buttons").toString());
    enableParts(bag.ReadProperty("Enabled", true).toBool());
    updateGeometry();
}

void movebtn::WriteProperties(PropertyBag& bag) const {
    writeCaptions(bag, moveCaptions());
    bag.WriteProperty("Caption", Caption(), "Mover Buttons");
    bag.WriteProperty("Enabled", Enabled(), true);
}

void movebtn::arrange() {
    const QSize nothing(0, 0), around = (inTwips() - aroundFrame).expandedTo(nothing);
    const QSize inside = (around - aroundButtons).expandedTo(nothing);
    place(frame(), QRect(framePlace, around));
    for (int i = 0; i < count(); ++i) {
        const int from = i * inside.width() / count(), to = (i + 1) * inside.width() / count();
        place(button(i), QRect(firstButton + QPoint(from, 0), QSize(to - from, inside.height())));
    }
}

QSize movebtn::sizeFor(QSize button) const {
    const Twips twips(*this);
    const QSize inside(twips.fromPx(button.width()) * count(), twips.fromPx(button.height()));
    const QSize needed = inside + aroundButtons + aroundFrame;
    const int caption = frame().minimumSizeHint().width() + twips.px(aroundFrame.width());
    return {std::max(twips.px(needed.width()), caption), twips.px(needed.height())};
}

QSize movebtn::sizeHint() const {
    QSize largest;
    for (int i = 0; i < count(); ++i)
        largest = largest.expandedTo(button(i).sizeHint());
    return sizeFor(largest);
}

QSize movebtn::minimumSizeHint() const {
    const int line = button(0).fontMetrics().height();
    return sizeFor({line * 2, line + 2});
}

} // namespace Korvane
