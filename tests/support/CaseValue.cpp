#include "support/CaseValue.h"

#include "support/CaseTable.h"

#include <charconv>
#include <stdexcept>
#include <string>

namespace Korvane::Testing {

namespace {

template <typename Number>
Number number(std::string_view text) {
    Number value{};
    const char* end = text.data() + text.size();
    if (std::from_chars(text.data(), end, value).ptr != end)
        throw std::invalid_argument("not a number: " + std::string(text));
    return value;
}

Decimal decimal(std::string_view text) {
    Decimal out;
    out.negative = text.starts_with('-');
    bool fraction = false;
    for (std::size_t i = out.negative ? 1 : 0; i < text.size(); ++i) {
        if (text[i] == '/') {
            out.scale = number<std::uint8_t>(text.substr(i + 1));
            break;
        }
        if (text[i] == '.') {
            fraction = true;
            continue;
        }
        // Times ten plus the digit, the carry of the low word taken from its upper half.
        const std::uint64_t lower = (out.low & 0xFFFFFFFF) * 10 + static_cast<unsigned>(text[i] - '0');
        const std::uint64_t upper = (out.low >> 32) * 10 + (lower >> 32);
        out.low = upper << 32 | (lower & 0xFFFFFFFF);
        out.high = out.high * 10 + static_cast<std::uint32_t>(upper >> 32);
        out.scale = static_cast<std::uint8_t>(out.scale + (fraction ? 1 : 0));
    }
    return out;
}

Currency currency(std::string_view text) {
    const Decimal value = decimal(text);
    auto tenThousandths = static_cast<std::int64_t>(value.low);
    for (int scale = value.scale; scale < 4; ++scale)
        tenThousandths *= 10;
    return {value.negative ? -tenThousandths : tenThousandths};
}

} // namespace

Variant caseValue(std::string_view kind, std::string_view value) {
    if (kind == "empty") return {};
    if (kind == "null") return Variant::null();
    if (kind == "boolean") return value == "true";
    if (kind == "byte") return number<std::uint8_t>(value);
    if (kind == "short") return number<std::int16_t>(value);
    if (kind == "long") return number<std::int32_t>(value);
    if (kind == "single") return number<float>(value);
    if (kind == "double") return number<double>(value);
    if (kind == "date") return Date(number<double>(value));
    if (kind == "currency") return currency(value);
    if (kind == "decimal") return decimal(value);
    if (kind == "text") return quotedText(value);
    throw std::invalid_argument("no such kind: " + std::string(kind));
}

} // namespace Korvane::Testing
