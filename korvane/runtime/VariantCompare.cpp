#include <korvane/runtime/Variant.h>

#include <korvane/runtime/Collation.h>
#include <korvane/runtime/FixedPoint.h>
#include <korvane/runtime/RuntimeError.h>

#include <cmath>
#include <compare>
#include <limits>
#include <optional>

namespace Korvane {

namespace {

template <typename T>
Comparison order(const T& a, const T& b) {
    if (a < b) return Comparison::Less;
    return b < a ? Comparison::Greater : Comparison::Equal;
}

Comparison toComparison(std::strong_ordering ordering) {
    if (std::is_lt(ordering)) return Comparison::Less;
    return std::is_gt(ordering) ? Comparison::Greater : Comparison::Equal;
}

bool isFraction(VarType type) {
    return type == VarType::Single || type == VarType::Double || type == VarType::Date;
}

std::optional<Decimal> decimalOf(const Variant& value) {
    switch (value.type()) {
    case VarType::Decimal:
        return std::get<Decimal>(value.storage());
    case VarType::Currency:
        return toDecimal(std::get<Currency>(value.storage()));
    case VarType::Single:
        return toDecimal(value.toSingle());
    case VarType::Double:
    case VarType::Date:
        return toDecimal(value.toDouble());
    default:
        return toDecimal(std::int64_t{value.toInt32()});
    }
}

/// A value that is too large for a decimal lies beyond every decimal, on its own side of zero.
Comparison compareAsDecimals(const Variant& a, const Variant& b) {
    const auto left = decimalOf(a), right = decimalOf(b);
    if (!left || !right) return order(left ? 0.0 : a.toDouble(), right ? 0.0 : b.toDouble());
    return toComparison(compareDecimals(*left, *right));
}

/// Beside a currency a fraction has no more than the currency's four decimals.
Comparison compareAsCurrencies(const Variant& a, const Variant& b) {
    const auto currencyOf = [](const Variant& value) {
        const auto* currency = std::get_if<Currency>(&value.storage());
        return currency ? *currency : toCurrency(value.toDouble());
    };
    const auto left = currencyOf(a), right = currencyOf(b);
    if (!left || !right) return order(left ? 0.0 : a.toDouble(), right ? 0.0 : b.toDouble());
    return order(left->tenThousandths, right->tenThousandths);
}

/// Beside a single a double counts with the precision of a single, unless it is out of its range.
Comparison compareAsSingles(double a, double b) {
    constexpr double limit = std::numeric_limits<float>::max();
    if (std::abs(a) > limit || std::abs(b) > limit) return order(a, b);
    return order(static_cast<float>(a), static_cast<float>(b));
}

Comparison compareNumbers(const Variant& a, const Variant& b) {
    const VarType left = a.type(), right = b.type();
    const auto either = [&](VarType type) { return left == type || right == type; };
    if (either(VarType::Decimal)) return compareAsDecimals(a, b);
    if (either(VarType::Currency)) {
        const bool exact = !isFraction(left) && !isFraction(right);
        return exact ? compareAsDecimals(a, b) : compareAsCurrencies(a, b);
    }
    if (either(VarType::Single) && isFraction(left) && isFraction(right))
        return compareAsSingles(a.toDouble(), b.toDouble());
    return order(a.toDouble(), b.toDouble());
}

std::string_view textOf(const Variant& value) {
    return value.isEmpty() ? std::string_view() : value.asText();
}

} // namespace

Comparison compare(const Variant& a, const Variant& b) {
    if (a.isNull() || b.isNull()) return Comparison::Null;
    if (a.isArray() || b.isArray()) throw RuntimeError(RuntimeError::TypeMismatch);
    const bool leftIsText = a.isText() || (a.isEmpty() && b.isText());
    const bool rightIsText = b.isText() || (b.isEmpty() && a.isText());
    if (leftIsText && rightIsText) return toComparison(compareTexts(textOf(a), textOf(b)));
    if (leftIsText != rightIsText) return leftIsText ? Comparison::Greater : Comparison::Less;
    return compareNumbers(a, b);
}

} // namespace Korvane
