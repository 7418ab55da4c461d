#pragma once

#include <QStringList>

namespace Korvane {

class PanelButton;

/// What the four record-move buttons read from the start: "|<", "<", ">" and ">|".
const QStringList& moveCaptions();

/// Sets the caption of record-move button `index`. The one that it has from the start is shown as a symbol,
/// read out and explained as "First record" and so on; any other is shown as text.
void showMoveCaption(PanelButton& button, int index, const QString& text);

} // namespace Korvane
