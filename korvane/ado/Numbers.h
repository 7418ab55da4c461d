#pragma once

#include <korvane/ado/DataType.h>
#include <korvane/runtime/Variant.h>

#include <cstdint>
#include <string>

namespace Korvane::ado {

/// Makes a value of a number that an engine handed out, in the form of its column's type. A number that this
/// type cannot hold is handed out as what it is: one wider than 32 bits as a decimal.
void setNumber(Variant& value, std::int64_t number, DataType type);
/// The same of a number with a fraction.
void setNumber(Variant& value, double number, DataType type);

/// The shortest text that reads back as the same number.
std::string exactText(double number);

} // namespace Korvane::ado
