#pragma once

#include "clinic/tour/Journey.h"
#include "shared/Tour.h"

#include <vector>

namespace Clinic {

using Step = Apps::Step<Journey>;

/// Choosing a patient and entering a Nip with every kind of control, up to its rows in the database.
const std::vector<Step>& enteringSteps();

/// Opening that Nip again, changing, renaming and cancelling.
const std::vector<Step>& changingSteps();

/// Customizing the form while that Nip is open, entering a Nip in it, and finding the old ones intact.
const std::vector<Step>& customizingSteps();

} // namespace Clinic
