#pragma once

#include "dateform/Journey.h"

#include <vector>

namespace DateForm {

/// What the date control does with what is said. Needs an engine that listens to the journey's speaker.
const std::vector<Step>& voiceSteps();

} // namespace DateForm
