#include <korvane/controls/axdate/PlaceDictated.h>

#include <korvane/controls/axdate/DatePartBox.h>
#include <korvane/controls/axdate/DateParts.h>
#include <korvane/controls/axdate/axDate.h>
#include <korvane/controls/container/Text.h>
#include <korvane/runtime/Text.h>
#include <korvane/voice/SpokenNumber.h>

namespace Korvane {

namespace {

bool isDigits(const std::string& text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

bool isInMonth(const axDate& date) {
    const auto* box = qobject_cast<const DatePartBox*>(date.window()->focusWidget());
    return box && date.isAncestorOf(box) && box->index() == DateParts::month;
}

} // namespace

QString placeDictated(axDate& date, const QString& words) {
    const std::string said = lowerCase(trim(utf8(words)));
    const auto number = isDigits(said) ? said : voice::spokenNumber(said);
    if (number) {
        date.SetText(qt(*number));
        return {};
    }
    const QString month = date.GetMonthNumberString(qt(said));
    if (month == QStringLiteral("not found"))
        return axDate::tr("value \"%1\" not found. You can say either a numeric or the name of a month.")
            .arg(qt(said));
    if (!isInMonth(date)) date.SetElementFocus(DateParts::month);
    if (isInMonth(date)) date.SetText(month);
    return {};
}

} // namespace Korvane
