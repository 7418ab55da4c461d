#pragma once

#include <QIcon>

#include <string_view>

namespace Designer {

/// A small drawing of a control, by its name; sharp at every size. An empty icon for an unknown one.
QIcon controlIcon(std::string_view name);

} // namespace Designer
