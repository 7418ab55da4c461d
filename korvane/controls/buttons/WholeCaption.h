#pragma once

class QHelpEvent;
class QString;
class QWidget;

namespace Korvane {

/// Shows the caption of a part that is shown shortened as its tool tip: without the mark of its accelerator,
/// and one ampersand for two.
void showWholeCaption(const QHelpEvent& asked, const QString& caption, QWidget& part);

} // namespace Korvane
