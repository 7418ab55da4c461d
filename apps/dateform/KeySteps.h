#pragma once

#include "dateform/Journey.h"

#include <vector>

namespace DateForm {

/// What the date control does with keys, and what the form does about it.
const std::vector<Step>& keySteps();

} // namespace DateForm
