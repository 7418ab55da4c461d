#pragma once

#include <QMetaProperty>

#include <vector>

class QDesignerFormEditorInterface;

namespace Korvane {
class UserControl;
}

namespace Designer {

/// The properties of a control that no form keeps: what is set in Designer is gone with the form's window.
std::vector<QMetaProperty> passingProperties(const Korvane::UserControl& control);

/// Lets Designer's property editor show them in a group of their own, "axDate, not kept", and all the others
/// of the control in one of its name, whichever class declares them.
void groupProperties(QDesignerFormEditorInterface& designer, Korvane::UserControl& control);

} // namespace Designer
