#pragma once

namespace Apps {

/// Readies the screen before the application object is made. A tour ("--tour" on the command line) needs no
/// display: it gets one that shows nothing (platform "offscreen"), large enough for the window and its lists,
/// and what such a screen cannot do is not told.
///
/// Refuses to go on when there is no display and no tour is wanted.
void readyScreen(int argc, char** argv);

} // namespace Apps
