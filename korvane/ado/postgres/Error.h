#pragma once

#include <korvane/runtime/RuntimeError.h>

#include <string>
#include <string_view>

struct pg_conn;
struct pg_result;

namespace Korvane::ado::postgres {

/// The five characters of the engine's code as the number that a RuntimeError carries (read in base 36).
int nativeCode(std::string_view sqlState);
/// The five characters that a number stands for.
std::string sqlState(int nativeCode);

/// Whether a failure may come from tables that another program has changed, or from a value that was lifted
/// out and stands where the engine cannot tell its type: as literal text, with the tables read anew, it may
/// do.
bool mayDoBetterAsText(const RuntimeError& error);

/// The failure that the server reported: its message, what a person can do about it where that is known, and
/// its code.
RuntimeError engineError(const pg_result* result);

/// The connection is gone, or could not be made: which of the two, a text that is translated here, and what
/// the client library says about it.
RuntimeError connectionError(const pg_conn* handle, const char* what);

/// Why a connection could not be made: what the server said, as of any other failure, when it was reached.
/// The handle has to be at its most talkative (PQERRORS_VERBOSE).
RuntimeError refusalError(const pg_conn* handle);

} // namespace Korvane::ado::postgres
