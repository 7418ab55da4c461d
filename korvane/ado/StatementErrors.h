#pragma once

#include <korvane/runtime/RuntimeError.h>

namespace Korvane::ado {

// What every engine says of a statement in the same words.

RuntimeError noStatement();
RuntimeError severalStatements();
RuntimeError parameterMark();

} // namespace Korvane::ado
