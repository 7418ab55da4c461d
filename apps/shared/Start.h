#pragma once

#include <functional>

namespace Apps {

/// What every application does before its first window: it gets its name and version, a screen
/// (`readyScreen`), the application object and the language, and has its options read. Returns what `run`
/// does.
///
///     int main(int argc, char** argv) {
///         Options options;
///         return Apps::start(
///             "korvane-gallery", argc, argv, [&] { options = readOptions(); }, [&] { return run(options);
///             });
///     }
///
/// With --help and --version, which work where no window can be opened, the options are read without a screen
/// first: that ends the program.
int start(const char* program, int argc, char** argv, const std::function<void()>& readOptions,
          const std::function<int()>& run);

} // namespace Apps
