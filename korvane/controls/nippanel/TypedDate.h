#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace Korvane {

/// The date and time that a text typed by the user stands for; nothing while it is not a whole one.
///
///     typedDate("3/4/25", shown);              // 3/4/2025, the time of day as it was shown
///     typedDate("11/15/2025 9:30 AM", shown);
///
/// Month, day and year, the year with two digits (00 to 29 are 2000 to 2029, 30 to 99 are 1930 to 1999) or
/// with four, from 100 on; behind them a time of day with or without seconds, and with AM or PM or else of
/// 24 hours. Without a time, or with the hour and minute of `shown`, the time is that of `shown`.
std::optional<QDateTime> typedDate(const QString& text, const QDateTime& shown);

} // namespace Korvane
