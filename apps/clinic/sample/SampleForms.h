#pragma once

#include "clinic/sample/FormDefinition.h"

#include <vector>

namespace Clinic {

/// The forms of the sample clinic in the order of their tabs: vital signs, PHQ-9, demographics and baseline
/// as published, with what the clinic adds to them; and its own problem list and billing.
std::vector<FormDefinition> sampleForms();

} // namespace Clinic
