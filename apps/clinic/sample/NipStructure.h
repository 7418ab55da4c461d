#pragma once

#include "clinic/sample/FormDefinition.h"

#include <korvane/ado/Connection.h>

#include <string>
#include <vector>

namespace Clinic {

/// Writes forms as the groups of a Nip that has none yet: the structure's rows and a data table for each.
/// Raises a RuntimeError.
void writeStructure(Korvane::ado::Connection& connection, const std::vector<FormDefinition>& forms);

/// The data table of the form at that place, counted from 0.
std::string dataTable(std::size_t form);

} // namespace Clinic
