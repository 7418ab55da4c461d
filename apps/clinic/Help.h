#pragma once

class QWidget;

namespace Clinic {

/// A box that says which keys do what.
void showKeys(QWidget& window);

/// A box that says what the program is.
void showAbout(QWidget& window);

} // namespace Clinic
