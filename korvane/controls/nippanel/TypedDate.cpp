#include <korvane/controls/nippanel/TypedDate.h>

#include <QRegularExpression>

namespace Korvane {

namespace {

constexpr int firstYear = 100;
constexpr int lastYearOfThisCentury = 29;

QDate dateOf(const QRegularExpressionMatch& match) {
    int year = match.captured("year").toInt();
    if (match.capturedLength("year") == 2) year += year <= lastYearOfThisCentury ? 2000 : 1900;
    if (year < firstYear) return {};
    return {year, match.captured("month").toInt(), match.captured("day").toInt()};
}

QTime timeOf(const QRegularExpressionMatch& match) {
    int hour = match.captured("hour").toInt();
    const QString half = match.captured("half").toUpper();
    if (!half.isEmpty()) {
        if (hour < 1 || hour > 12) return {};
        hour = hour % 12 + (half == "P" ? 12 : 0);
    }
    return {hour, match.captured("minute").toInt(), match.captured("second").toInt()};
}

bool sameMinute(QTime a, QTime b) {
    return a.hour() == b.hour() && a.minute() == b.minute();
}

} // namespace

std::optional<QDateTime> typedDate(const QString& text, const QDateTime& shown) {
    static const QRegularExpression form(
        R"(^\s*(?<month>\d{1,2})\s*/\s*(?<day>\d{1,2})\s*/\s*(?<year>\d{4}|\d{2}))"
        R"((?:\s+(?<hour>\d{1,2}):(?<minute>\d{2})(?::(?<second>\d{2}))?\s*(?:(?<half>[ap])m?)?)?\s*$)",
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(text);
    const QDate date = match.hasMatch() ? dateOf(match) : QDate();
    if (!date.isValid()) return std::nullopt;
    QTime time = match.captured("hour").isEmpty() ? shown.time() : timeOf(match);
    if (match.captured("second").isEmpty() && sameMinute(time, shown.time())) time = shown.time();
    const QDateTime typed(date, time);
    if (!time.isValid() || !typed.isValid()) return std::nullopt;
    return typed;
}

} // namespace Korvane
