#include <korvane/controls/container/Text.h>

namespace Korvane {

QDateTime qt(Date date) {
    const Date::Parts p = date.parts();
    const QDateTime exact(QDate(p.year, p.month, p.day), QTime(p.hour, p.minute, p.second));
    if (exact.isValid()) return exact;
    // The hour that the local zone skips in spring: the same moment on the clock an hour on.
    return QDateTime(exact.date(), QTime(p.hour, p.minute, p.second).addSecs(3600));
}

Date fromQt(const QDateTime& dateTime) {
    const QDate d = dateTime.date();
    const QTime t = dateTime.time();
    return Date::of(d.year(), d.month(), d.day(), t.hour(), t.minute(), t.second());
}

} // namespace Korvane
