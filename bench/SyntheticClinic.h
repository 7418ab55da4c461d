#pragma once

#include "Place.h"
#include "Size.h"

#include <string>

namespace Korvane::Bench {

/// The address of the database of a size, with its structure and 10,000 encounters; made when it is first
/// asked for. As a file it stands in a temporary directory that is removed at the end, or is kept in
/// KORVANE_BENCH_DIR. Encounters count from 1.
std::string databaseOf(const Place& place, const Size& size);

/// The address of another one like that, for those who change its structure; made anew in each process.
std::string databaseToCustomize(const Place& place, const Size& size);

/// An identifier that no encounter of that database has yet; never the same one twice in this process.
int freshEncounter(const Place& place, const Size& size);

/// Stored encounters in no particular order, so that no run finds the pages of the run before.
int someEncounter();

} // namespace Korvane::Bench
