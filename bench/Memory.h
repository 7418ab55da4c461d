#pragma once

#include "ShownForms.h"
#include "Size.h"

#include <optional>

namespace Korvane::Bench {

/// The heap that a shown form holds in MiB, without what it is made from; measured in a process of its
/// own.
double formMemory(Maker maker, const Size& size);

/// What that process does: nothing unless it was started to measure, else its exit code. Needs an
/// application.
std::optional<int> measureMemoryIfAsked(int argc, char** argv);

} // namespace Korvane::Bench
