#pragma once

#include "Size.h"

#include <korvane/ado/Connection.h>

namespace Korvane::Bench {

/// Makes the tables in an empty database, the structure of a Nip of that size, and the encounters.
void writeRows(ado::Connection& db, const Size& size);

} // namespace Korvane::Bench
