#pragma once

#include <korvane/runtime/Date.h>

#include <QString>

namespace Clinic {

/// How a person reads it: "3/14/1961", and "3/14/1961 5:21 PM" with the time. Empty for the zero date and for
/// a date out of range.
QString dayText(Korvane::Date date);
QString momentText(Korvane::Date date);

/// Whole years between two dates; nothing below 0.
int yearsBetween(Korvane::Date from, Korvane::Date to);

} // namespace Clinic
