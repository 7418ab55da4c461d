#include <korvane/runtime/Variant.h>

#include <korvane/runtime/FixedPoint.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

#include <cmath>
#include <limits>
#include <optional>
#include <type_traits>

namespace Korvane {

namespace {

template <typename T>
T orRaise(std::optional<T> value, RuntimeError::Code code) {
    if (!value) throw RuntimeError(code);
    return *value;
}

/// Halves to even, as the default rounding mode of the processor has it.
std::int64_t rounded(double value) {
    constexpr double limit = 9223372036854775808.0;
    if (!(value > -limit && value < limit)) throw RuntimeError(RuntimeError::Overflow);
    return static_cast<std::int64_t>(std::nearbyint(value));
}

/// Any kind of value as a number: `Number` is double, or std::int64_t (rounded).
template <typename Number>
struct AsNumber {
    Number operator()(Variant::EmptyValue) const { return 0; }
    Number operator()(Variant::NullValue) const { throw RuntimeError(RuntimeError::InvalidUseOfNull); }
    Number operator()(const std::shared_ptr<VariantArray>&) const {
        throw RuntimeError(RuntimeError::TypeMismatch);
    }
    Number operator()(bool value) const { return value ? -1 : 0; }
    Number operator()(Date value) const { return (*this)(value.dayNumber()); }
    Number operator()(const std::string& text) const {
        return (*this)(orRaise(parseNumber(text), RuntimeError::TypeMismatch));
    }
    template <typename T>
    Number operator()(const T& value) const {
        constexpr bool whole = std::is_same_v<Number, std::int64_t>;
        if constexpr (std::is_floating_point_v<T> && whole)
            return rounded(value);
        else if constexpr (std::is_arithmetic_v<T>)
            return value;
        else if constexpr (whole)
            return orRaise(std::optional<std::int64_t>(roundedToWhole(value)), RuntimeError::Overflow);
        else
            return fixedPointToDouble(value);
    }
};

template <typename Integer>
Integer toInteger(const Variant::Storage& value) {
    const std::int64_t whole = std::visit(AsNumber<std::int64_t>{}, value);
    if (whole < std::numeric_limits<Integer>::min() || whole > std::numeric_limits<Integer>::max())
        throw RuntimeError(RuntimeError::Overflow);
    return static_cast<Integer>(whole);
}

} // namespace

std::int16_t Variant::toInt16() const {
    return toInteger<std::int16_t>(mValue);
}

std::int32_t Variant::toInt32() const {
    return toInteger<std::int32_t>(mValue);
}

double Variant::toDouble() const {
    return std::visit(AsNumber<double>{}, mValue);
}

float Variant::toSingle() const {
    const double value = toDouble();
    if (std::abs(value) > static_cast<double>(std::numeric_limits<float>::max()))
        throw RuntimeError(RuntimeError::Overflow);
    return static_cast<float>(value);
}

bool Variant::toBoolean() const {
    if (isText() && sameName(asText(), "True")) return true;
    if (isText() && sameName(asText(), "False")) return false;
    return toDouble() != 0;
}

Date Variant::toDate() const {
    if (const auto* date = std::get_if<Date>(&mValue)) return *date;
    if (isText()) {
        if (const auto date = parseDate(asText())) return *date;
    }
    const Date date(toDouble());
    (void)date.seconds(); // raises Overflow outside the range
    return date;
}

} // namespace Korvane
