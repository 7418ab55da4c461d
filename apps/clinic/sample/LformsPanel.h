#pragma once

#include "clinic/sample/FormDefinition.h"

#include <QByteArray>

namespace Clinic {

/// Reads a panel in the LForms format as the group of that name. A question with answers becomes a combo box,
/// restricted unless other answers are allowed (CWE); any other a text box. A question's only unit stands in
/// its caption, as people write it (mmHg for "mm[Hg]"); several become a combo box beside it, which starts
/// with the panel's default. Headers are left out, their questions stay. A RuntimeError when it is no panel.
FormDefinition readLformsPanel(const QByteArray& json, const std::string& group);

} // namespace Clinic
