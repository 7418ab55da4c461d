#pragma once

#include <QString>

namespace DateForm {

/// Drives the form with key presses: a date typed, stepped and pasted, parts refused, dates outside the
/// bounds; then it is spoken to, where the build has a speech engine and espeak-ng is installed, else a line
/// on standard output says why not. Each step leaves a numbered picture in the directory
/// ("01-a-date-is-typed.png").
///
/// What is not as it should be stops the tour and is named on standard error. 0 when all went well, else 1.
/// The pictures of one machine are the same at every run. The text size is in percent.
int runTour(const QString& directory, int textSize);

} // namespace DateForm
