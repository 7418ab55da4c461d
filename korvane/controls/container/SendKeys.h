#pragma once

class QString;

namespace Korvane {

/// Presses keys as if the user had typed them: each one goes to whatever has the focus when its turn comes,
/// after the event that is being handled. "{TAB}" is the Tab key, any other character itself.
///
///     sendKeys("{TAB}{TAB}");     // on to the control after the next
///
/// They are meant for the window that is in front now: once another one is, they are lost.
void sendKeys(const QString& keys);

/// Throws away the keys that are still to be pressed: something has refused to let the focus go.
void discardSentKeys();

} // namespace Korvane
