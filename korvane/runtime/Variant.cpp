#include <korvane/runtime/Variant.h>

#include <korvane/runtime/FixedPoint.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

#include <array>
#include <type_traits>
#include <utility>

namespace Korvane {

std::int32_t VariantArray::upperBound() const {
    return lowerBound + static_cast<std::int32_t>(elements.size()) - 1;
}

const Variant& VariantArray::at(std::int32_t index) const {
    const std::int64_t offset = std::int64_t{index} - lowerBound;
    if (offset < 0 || offset >= static_cast<std::int64_t>(elements.size()))
        throw RuntimeError(RuntimeError::SubscriptOutOfRange);
    return elements[static_cast<std::size_t>(offset)];
}

Variant& VariantArray::at(std::int32_t index) {
    return const_cast<Variant&>(std::as_const(*this).at(index));
}

Variant::Variant(VariantArray v) : mValue(std::make_shared<VariantArray>(std::move(v))) {}

VarType Variant::type() const {
    using enum VarType;
    static constexpr std::array<VarType, std::variant_size_v<Storage>> types = {Empty,
                                                                                Null,
                                                                                Int16,
                                                                                Int32,
                                                                                Single,
                                                                                Double,
                                                                                VarType::Currency,
                                                                                VarType::Date,
                                                                                Text,
                                                                                Boolean,
                                                                                VarType::Decimal,
                                                                                Byte,
                                                                                Array};
    return types[mValue.index()];
}

std::string Variant::text() const {
    return std::visit(
        []<typename T>(const T& value) -> std::string {
            if constexpr (std::is_same_v<T, EmptyValue>)
                return {};
            else if constexpr (std::is_same_v<T, NullValue>)
                throw RuntimeError(RuntimeError::InvalidUseOfNull);
            else if constexpr (std::is_same_v<T, std::string>)
                return value;
            else if constexpr (std::is_same_v<T, bool>)
                return value ? "True" : "False";
            else if constexpr (std::is_same_v<T, Korvane::Date>)
                return value.text();
            else if constexpr (std::is_floating_point_v<T>)
                return numberText(value);
            else if constexpr (std::is_integral_v<T>)
                return std::to_string(value);
            else if constexpr (std::is_same_v<T, std::shared_ptr<VariantArray>>)
                throw RuntimeError(RuntimeError::TypeMismatch);
            else
                return fixedPointText(value);
        },
        mValue);
}

std::string Variant::textOrEmpty() const {
    return isNull() ? std::string() : text();
}

const std::string& Variant::asText() const {
    if (const auto* text = std::get_if<std::string>(&mValue)) return *text;
    throw RuntimeError(RuntimeError::TypeMismatch);
}

const VariantArray& Variant::array() const {
    if (const auto* array = std::get_if<std::shared_ptr<VariantArray>>(&mValue)) return **array;
    throw RuntimeError(RuntimeError::TypeMismatch);
}

VariantArray& Variant::array() {
    auto* array = std::get_if<std::shared_ptr<VariantArray>>(&mValue);
    if (!array) throw RuntimeError(RuntimeError::TypeMismatch);
    if (array->use_count() > 1) *array = std::make_shared<VariantArray>(**array);
    return **array;
}

bool operator==(const Variant& a, const Variant& b) {
    if (!a.isArray() || !b.isArray()) return a.mValue == b.mValue;
    return a.array().lowerBound == b.array().lowerBound && a.array().elements == b.array().elements;
}

} // namespace Korvane
