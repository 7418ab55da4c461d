#pragma once

#include "clinic/sample/FormDefinition.h"

#include <string_view>

namespace Clinic {

/// Reads one form of a REDCap data dictionary (CSV) as the group of that name. Radio buttons and yes-or-no
/// become a list, a drop-down a restricted combo box, check boxes a list of several, a slider a combo box of
/// its labels, notes a text box without a limit, everything else that is typed a text box as long as its
/// validation says. A question that identifies the patient is carried forward. Uploads and descriptions are
/// left out. A RuntimeError when the dictionary has no such form or lacks a column.
FormDefinition readRedcapForm(std::string_view csv, std::string_view form, const std::string& group);

} // namespace Clinic
