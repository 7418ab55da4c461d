#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Clinic {

using CsvRow = std::vector<std::string>;

/// Reads comma-separated values: fields may stand in double quotes, and then hold commas, line breaks and
/// doubled quotes. Lines end in LF or CR LF, the last one needs none; empty lines are left out. A quoted
/// field that never ends is a RuntimeError.
std::vector<CsvRow> readCsv(std::string_view text);

} // namespace Clinic
