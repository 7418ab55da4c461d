#pragma once

class QLineEdit;
class QString;

namespace Korvane {

/// Shows a text that the form gives, from its beginning; raises no signal. The user who is in the box stays
/// where he is: the form may answer each key with the text that it makes of it, or with the same again.
/// False when it is what that box holds already.
bool showGivenText(QLineEdit& box, const QString& text);

} // namespace Korvane
