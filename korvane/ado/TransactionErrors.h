#pragma once

#include <korvane/runtime/RuntimeError.h>

namespace Korvane::ado {

// What every engine's transactions raise in the same words.

RuntimeError nothingToCommit();
RuntimeError nothingToRollBack();
/// The engine has ended the transaction by itself, or the handle's owner has: nobody here knows how.
RuntimeError transactionOver();

} // namespace Korvane::ado
