#pragma once

namespace Korvane::Bench {

/// Each registers its benchmarks for every size.
void registerStructure();
void registerLoad();
void registerSave();
void registerPanel();
void registerCustomize();
void registerRebuild();

} // namespace Korvane::Bench
