#include "clinic/Show.h"

#include <algorithm>
#include <tuple>

namespace Clinic {

using Korvane::Date;

namespace {

// Year 100 to 9999 as day numbers.
bool isShown(Date date) {
    return date != Date() && date.dayNumber() > -657435.0 && date.dayNumber() < 2958466.0;
}

QString day(const Date::Parts& p) {
    return QStringLiteral("%1/%2/%3").arg(p.month).arg(p.day).arg(p.year);
}

} // namespace

QString dayText(Date date) {
    return isShown(date) ? day(date.parts()) : QString();
}

QString momentText(Date date) {
    if (!isShown(date)) return {};
    const auto p = date.parts();
    const int hour = p.hour % 12 == 0 ? 12 : p.hour % 12;
    return QStringLiteral("%1 %2:%3 %4")
        .arg(day(p))
        .arg(hour)
        .arg(p.minute, 2, 10, QLatin1Char('0'))
        .arg(p.hour < 12 ? QStringLiteral("AM") : QStringLiteral("PM"));
}

int yearsBetween(Date from, Date to) {
    const auto a = from.parts();
    const auto b = to.parts();
    const bool anniversaryAhead = std::tie(b.month, b.day) < std::tie(a.month, a.day);
    return std::max(0, b.year - a.year - (anniversaryAhead ? 1 : 0));
}

} // namespace Clinic
