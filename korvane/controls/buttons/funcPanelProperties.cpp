#include <korvane/controls/buttons/funcPanel.h>

#include <korvane/controls/buttons/PanelButton.h>
#include <korvane/controls/container/PropertyValue.h>

#include <QGroupBox>

#include <algorithm>
#include <limits>

namespace Korvane {

namespace {

const QStringList& captions() {
    static const QStringList texts{"1", "2", "3", "4", "5"};
    return texts;
}

/// What a code is taken for, where it is one.
void takeSize(qint16& size, qint16 code) {
    if (code >= 0) size = std::min<qint16>(code, funcPanel::TwelvePoints);
}

void readSize(qint16& size, const PropertyBag& bag, const char* name) {
    const qint16 code = readCode(bag, name, funcPanel::TenPoints);
    if (code < 0) bag.addProblem(QLatin1String(name), funcPanel::tr("that is no size, %1 is used").arg(size));
    takeSize(size, code);
}

} // namespace

void funcPanel::BackColor(qint32 code) {
    mBackColor = code;
    showBackColour();
    emit PropertyChanged(QStringLiteral("BackColor"));
}

void funcPanel::btnsFontBold(bool bold) {
    mAllBold = bold;
    for (int i = 0; i < most; ++i)
        setBold(i, bold);
    emit PropertyChanged(QStringLiteral("btnsFontBold"));
}

void funcPanel::buttonStyle(qint16 style) {
    mStyle = style;
    showStyle();
    emit PropertyChanged(QStringLiteral("buttonStyle"));
}

QString funcPanel::FrameCaption() const {
    return frame().title();
}

void funcPanel::FrameCaption(const QString& text) {
    frame().setTitle(text);
    updateGeometry();
    emit PropertyChanged(QStringLiteral("FrameCaption"));
}

bool funcPanel::Enabled() const {
    return !testAttribute(Qt::WA_ForceDisabled);
}

void funcPanel::Enabled(bool on) {
    enableParts(on);
    setEnabled(on);
    emit PropertyChanged(QStringLiteral("Enabled"));
}

void funcPanel::FrameFontSize(qint16 code) {
    takeSize(mFrameFontSize, code);
    showFonts();
    emit PropertyChanged(QStringLiteral("FrameFontSize"));
}

void funcPanel::ButtonFontSize(qint16 code) {
    takeSize(mButtonFontSize, code);
    showFonts();
    emit PropertyChanged(QStringLiteral("ButtonFontSize"));
}

void funcPanel::InitProperties() {
    FrameCaption(QStringLiteral("Func Btn"));
    for (int i = 0; i < most; ++i)
        caption(i, captions()[i]);
    Enabled(true);
    buttonCount(most);
}

/// Written by hand it may be the number without a sign.
void funcPanel::readBackColor(const PropertyBag& bag) {
    const QVariant given = bag.ReadProperty("BackColor", {});
    const QVariant code =
        given.isValid() ? propertyValue(given, QMetaType::fromType<qlonglong>()) : buttonFace;
    const qlonglong number = code.toLongLong();
    const bool fits = code.isValid() && number >= std::numeric_limits<qint32>::min() &&
                      number <= std::numeric_limits<quint32>::max();
    if (!fits) bag.addProblem("BackColor", tr("that is no colour of 32 bits, the button face is used"));
    mBackColor = fits ? static_cast<qint32>(number) : buttonFace;
}

/// A count that would be refused is one of the bag's problems: no form opens with a message box.
void funcPanel::readCount(const PropertyBag& bag) {
    const qint16 count = readCode(bag, "buttonCount", most);
    const char* why = refusal(count);
    if (why) bag.addProblem(QStringLiteral("buttonCount"), tr("%1 5 is used").arg(tr(why)));
    mCount = why ? qint16{most} : count;
}

/// The control keeps its size, which is the host's to restore.
void funcPanel::ReadProperties(const PropertyBag& bag) {
    readBackColor(bag);
    readCaptions(bag, captions());
    mStyle = readCode(bag, "buttonStyle", ThreeDimensional);
    frame().setTitle(bag.ReadProperty("FrameCaption", "Function Btn").toString());
    readSize(mFrameFontSize, bag, "FrameFontSize");
    readSize(mButtonFontSize, bag, "ButtonFontSize");
    readCount(bag);
    showBackColour();
    showStyle();
    showFonts();
    arrange();
    updateGeometry();
}

void funcPanel::WriteProperties(PropertyBag& bag) const {
    bag.WriteProperty("BackColor", mBackColor, buttonFace);
    writeCaptions(bag, captions());
    bag.WriteProperty("buttonCount", mCount, most);
    bag.WriteProperty("buttonStyle", mStyle, ThreeDimensional);
    bag.WriteProperty("FrameCaption", FrameCaption(), "Function Btn");
    bag.WriteProperty("FrameFontSize", mFrameFontSize, TenPoints);
    bag.WriteProperty("ButtonFontSize", mButtonFontSize, TenPoints);
}

} // namespace Korvane
