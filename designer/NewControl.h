#pragma once

#include "designer/ControlKinds.h"

namespace Designer {

/// A control newly dropped on a form, in Designer's XML: its first size, and the properties to which
/// `InitProperties` gives another value than the control is made with. The form keeps those, so that it is
/// the same whoever builds it. Says of the properties that are not kept that they are not.
QString newControl(const ControlKind& kind);

} // namespace Designer
