#pragma once

namespace Clinic {

/// Readies a program that shows nothing (platform "offscreen") for a tour: gives it a screen that is large
/// enough for the window and its lists, and keeps quiet about what such a screen cannot do. Does nothing on
/// other platforms. To be called before the application object is made.
void prepareNoScreen();

} // namespace Clinic
