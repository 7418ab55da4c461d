#pragma once

#include <korvane/runtime/RuntimeError.h>

struct sqlite3;

namespace Korvane::ado::sqlite {

/// The failure that the engine reported last on a handle: its message, and what a person can do about it
/// where that is known. `code` is the (extended) result code.
RuntimeError engineError(sqlite3* handle, int code);

/// Raises it unless the code is one of success.
void check(sqlite3* handle, int code);

} // namespace Korvane::ado::sqlite
