#pragma once

#include <korvane/controls/container/UserControl.h>

class QDesignerFormEditorInterface;

namespace Designer {

/// Lets Designer's property editor show the properties of a control that no form keeps in a group of their
/// own, "axDate, not kept", and all its others in one of its name, whichever class declares them.
void groupProperties(QDesignerFormEditorInterface& designer, Korvane::UserControl& control);

} // namespace Designer
