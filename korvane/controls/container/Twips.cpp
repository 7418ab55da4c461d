#include <korvane/controls/container/Twips.h>

#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QFont>
#include <QHash>
#include <QLineEdit>
#include <QScreen>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace Korvane {

namespace {

int naturalHeight(QWidget& probe, QFont font, QStyle& style) {
    font.setResolveMask(QFont::AllPropertiesResolved);
    probe.setStyle(&style);
    probe.setFont(font);
    return probe.sizeHint().height();
}

/// What the style itself gives a one-line control of that font.
int oneLineHeight(const QFont& font, QStyle& style) {
    QLineEdit text;
    QComboBox list;
    QComboBox editable;
    editable.setEditable(true);
    QDateTimeEdit date;
    return std::max({naturalHeight(text, font, style), naturalHeight(list, font, style),
                     naturalHeight(editable, font, style), naturalHeight(date, font, style)});
}

/// By style, resolution and font. A style sheet can make anything of a style without a change of its name.
QHash<QString, double>& knownScales() {
    static QHash<QString, double> known;
    static QString sheet;
    if (sheet != qApp->styleSheet()) known.clear();
    sheet = qApp->styleSheet();
    return known;
}

double pixelsPerTwip(const QFont& font, QStyle& style, int dotsPerInch) {
    QHash<QString, double>& known = knownScales();
    const QString key = style.name() + '/' + QString::number(dotsPerInch) + '/' + font.key();
    const auto found = known.constFind(key);
    if (found != known.constEnd()) return *found;
    return known[key] = static_cast<double>(oneLineHeight(font, style)) / Twips::oneLine;
}

} // namespace

Twips::Twips(const QWidget& widget)
    : mPixelsPerTwip(pixelsPerTwip(widget.font(), *widget.style(), widget.logicalDpiY())) {}

Twips::Twips(const QFont& font)
    : mPixelsPerTwip(pixelsPerTwip(font, *QApplication::style(),
                                   qRound(QGuiApplication::primaryScreen()->logicalDotsPerInchY()))) {}

int Twips::px(int twips) const {
    return static_cast<int>(std::lround(twips * mPixelsPerTwip));
}

int Twips::fromPx(int pixels) const {
    return static_cast<int>(std::lround(pixels / mPixelsPerTwip));
}

} // namespace Korvane
