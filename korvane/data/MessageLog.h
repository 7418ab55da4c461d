#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace Korvane {

/// @file
/// The leveled message log of the process: level 1 is the most severe, 5 the least; a message is written when
/// the log's level is at least its own, and messages of level 1 and 2 are shown to the user as well.
///
///     bLogInit("/var/log/clinic", 3);
///     vLogAdd("Import", "12 rows read", 3);      // 261115 17:21:51 Import: 12 rows read
///
/// Before `bLogInit`, and after a failed write, `vLogAdd` does nothing.

/// Opens "<YYYYMMDD>.LOG" in the directory for appending (made for its owner alone) and sets the level, 1
/// to 5. False, with the reason in `lastLogError`, when the level is out of range or the file cannot be
/// opened; the log is then not ready.
bool bLogInit(const std::filesystem::path& directory, int level);

/// Closes the log; it is then not ready.
void logClose();

/// Writes and shows a message by its level. A level outside 1 to 5 is shown in a box titled "Invalid Message
/// Log Level!".
void vLogAdd(std::string_view source, std::string_view message, std::int32_t level);

/// Prints one line to the log file, with the date and time before it when `stamped`. A failure closes the
/// log.
void vLogWrite(std::string_view text, bool stamped);

/// Whether a log is open.
bool logReady();
/// Why the log last failed; empty when it never did.
const std::string& lastLogError();

} // namespace Korvane
