#pragma once

#include <QString>

namespace Gallery {

/// Goes through the pages with key presses, and leaves a numbered picture of each step in the directory
/// ("01-ucnippanel.png"); properties are changed, events raised, the kept ones written and read again.
///
/// What is not as it should be stops the tour and is named on standard error. 0 when all went well, else 1.
/// The pictures of one machine are the same at every run. The text size is in percent.
int runTour(const QString& directory, int textSize);

} // namespace Gallery
