#pragma once

namespace Korvane::voice {

/// The part of a date that somebody is about to say; `Any` where that is not known.
enum class DatePart { Any, Month, Day, Year };

} // namespace Korvane::voice
