#pragma once

#include "Size.h"

#include <QTabWidget>

#include <memory>

namespace Korvane::Bench {

/// The synthetic Nip as plain Qt widgets, all made at once: a scrolled page for each group, and in it for
/// each field a label and a line edit, a combo box or a list with its check boxes, filled with one
/// encounter's values.
std::unique_ptr<QTabWidget> bareForm(const Size& size);

} // namespace Korvane::Bench
