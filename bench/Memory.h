#pragma once

#include "Size.h"

#include <optional>
#include <string>

namespace Korvane::Bench {

/// The heap that a shown form holds (`showForm`), in MiB, measured in a process of its own.
double formMemory(const std::string& by, const Size& size);

/// What that process does: nothing unless it was started to measure, else its exit code. Needs an
/// application.
std::optional<int> measureMemoryIfAsked(int argc, char** argv);

} // namespace Korvane::Bench
