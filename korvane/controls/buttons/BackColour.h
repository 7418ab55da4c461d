#pragma once

#include <QtGlobal>

class QColor;
class QPalette;
class QWidget;

namespace Korvane {

/// The code of the button face.
constexpr qint32 buttonFace = static_cast<qint32>(0x8000000FU);

/// The colour of a code: red in the lowest byte, then green and blue; or, with the highest bit set, the
/// number of a colour of the desktop in the lowest byte. The desktop's are taken from the palette; an unknown
/// number is the button face.
QColor colourOf(qint32 code, const QPalette& palette);
/// The code of a colour; of an invalid one the button face. Has no transparency.
qint32 codeOf(const QColor& colour);

/// Fills the background, and writes on it in a colour that can be read there. The button face leaves the
/// widget as its form is.
void setBackColour(QWidget& widget, qint32 code, const QPalette& palette);

} // namespace Korvane
