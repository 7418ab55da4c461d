#include <korvane/controls/container/Text.h>

#include <QTextDocument>

namespace Korvane {

QString toolTipOf(const QString& text) {
    return text.isEmpty() ? text : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

QDateTime qt(Date date) {
    const Date::Parts p = date.parts();
    const QDate day(p.year, p.month, p.day);
    const QTime time(p.hour, p.minute, p.second);
    QDateTime exact(day, time);
    if (exact.isValid()) return exact;
    // Inside the hour that the local zone skips in spring: shown an hour on, as the zone's clock would.
    return QDateTime(day, time.addSecs(3600));
}

Date fromQt(const QDateTime& dateTime) {
    const QDate d = dateTime.date();
    const QTime t = dateTime.time();
    return Date::of(d.year(), d.month(), d.day(), t.hour(), t.minute(), t.second());
}

} // namespace Korvane
