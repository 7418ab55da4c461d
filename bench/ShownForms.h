#pragma once

#include "Size.h"

#include <korvane/ado/Connection.h>

#include <QWidget>

#include <memory>
#include <string>

namespace Korvane::Bench {

/// Makes a form of that size, fills it and shows it, painted, on its first tab. `by` is "korvane", the Nip
/// panel from an open connection to the loaded encounter, or "widgets", the bare widgets of Qt.
std::unique_ptr<QWidget> showForm(const std::string& by, const Size& size,
                                  const std::shared_ptr<ado::Connection>& connection);

} // namespace Korvane::Bench
