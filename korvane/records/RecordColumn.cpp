#include <korvane/records/RecordColumn.h>

#include <korvane/data/ErrLog.h>

namespace Korvane {

namespace {

bool isBlank(const Variant& value) {
    return value.isEmpty() || (value.isText() && value.asText().empty());
}

} // namespace

void assignColumn(std::int32_t& member, const Variant& value) {
    member = isBlank(value) ? 0 : value.toInt32();
}

void assignColumn(bool& member, const Variant& value) {
    member = !isBlank(value) && value.toBoolean();
}

void assignColumn(Date& member, const Variant& value) {
    member = isBlank(value) ? Date() : value.toDate();
}

void assignColumn(Variant& member, const Variant& value) {
    member = value;
}

void assignColumn(std::string& member, const Variant& value) {
    if (value.isText())
        member = value.asText();
    else
        member = value.textOrEmpty();
}

bool readAlike(const Variant& stored, const Variant& written) {
    const std::string a = stored.textOrEmpty();
    const std::string b = written.textOrEmpty();
    if (a == b) return true;
    const auto date = parseDate(a);
    return date && date == parseDate(b);
}

void logColumnFailure(std::string_view prefix) {
    ErrLog(std::string(prefix) + currentError().Description());
}

} // namespace Korvane
