#include <korvane/controls/buttons/BackColour.h>

#include <QColor>
#include <QPalette>
#include <QWidget>

#include <array>
#include <cmath>

namespace Korvane {

namespace {

/// The colours of the desktop by their number.
constexpr std::array roles{
    QPalette::Mid,             // scroll bar
    QPalette::Dark,            // desktop
    QPalette::Highlight,       // title of the active window
    QPalette::Mid,             // title of another window
    QPalette::Window,          // menu
    QPalette::Base,            // window
    QPalette::Dark,            // frame of a window
    QPalette::WindowText,      // text of a menu
    QPalette::Text,            // text of a window
    QPalette::HighlightedText, // text of the title of the active window
    QPalette::Window,          // border of the active window
    QPalette::Window,          // border of another window
    QPalette::Mid,             // behind several documents
    QPalette::Highlight,       // selection
    QPalette::HighlightedText, // text of the selection
    QPalette::Window,          // button face
    QPalette::Dark,            // shadow of a button
    QPalette::Mid,             // text that is disabled
    QPalette::ButtonText,      // text of a button
    QPalette::WindowText,      // text of the title of another window
    QPalette::Light,           // light edge of a button
    QPalette::Shadow,          // dark shadow
    QPalette::Midlight,        // light of a button
    QPalette::ToolTipText,     // text of a tip
    QPalette::ToolTipBase,     // tip
};

constexpr std::size_t faceNumber = buttonFace & 0xFF;

double linear(double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one), b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/// The form's own colour of text where it can be read, else black or white.
QColor textOn(const QColor& back, const QColor& usual) {
    constexpr double readable = 4.5;
    if (contrast(usual, back) >= readable) return usual;
    return contrast(Qt::black, back) > contrast(Qt::white, back) ? Qt::black : Qt::white;
}

} // namespace

QColor colourOf(qint32 code, const QPalette& palette) {
    const auto bits = static_cast<quint32>(code);
    const auto byte = [bits](int at) { return static_cast<int>(bits >> (8 * at) & 0xFFU); };
    if (code >= 0) return {byte(0), byte(1), byte(2)};
    const auto number = static_cast<std::size_t>(byte(0));
    return palette.color(roles.at(number < roles.size() ? number : faceNumber));
}

qint32 codeOf(const QColor& colour) {
    if (!colour.isValid()) return buttonFace;
    return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

void setBackColour(QWidget& widget, qint32 code, const QPalette& palette) {
    QPalette own;
    if (code != buttonFace) {
        const QColor back = colourOf(code, palette);
        own.setColor(QPalette::Window, back);
        own.setColor(QPalette::WindowText, textOn(back, palette.color(QPalette::WindowText)));
    }
    widget.setPalette(own);
    widget.setAutoFillBackground(code != buttonFace);
}

} // namespace Korvane
