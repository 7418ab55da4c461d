#pragma once

#include <korvane/runtime/Date.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Korvane {

class Variant;

/// A fixed-point number with four decimals.
struct Currency {
    std::int64_t tenThousandths = 0; ///< 25000 is 2.5
    friend bool operator==(const Currency&, const Currency&) = default;
};

/// A decimal number: (-1)^negative * mantissa / 10^scale, the mantissa up to 96 bits, the scale 0 to 28.
struct Decimal {
    std::uint32_t high = 0; ///< the mantissa's bits above the 64 of `low`
    std::uint64_t low = 0;  ///< the mantissa's lower 64 bits
    std::uint8_t scale = 0; ///< decimals
    bool negative = false;  ///< below 0
    friend bool operator==(const Decimal&, const Decimal&) = default;
};

/// A one-dimensional array whose first element has the index `lowerBound`.
struct VariantArray {
    std::int32_t lowerBound = 0;   ///< the index of the first element
    std::vector<Variant> elements; ///< from `lowerBound` on

    /// The index of the last element; one below `lowerBound` when there is none.
    std::int32_t upperBound() const;
    /// SubscriptOutOfRange outside lowerBound..upperBound.
    const Variant& at(std::int32_t index) const;
    Variant& at(std::int32_t index);
};

/// The kinds of value, with their usual codes. An array is `Array` (8192) + 12.
enum class VarType : std::uint16_t {
    Empty = 0,
    Null = 1,
    Int16 = 2,
    Int32 = 3,
    Single = 4,
    Double = 5,
    Currency = 6,
    Date = 7,
    Text = 8,
    Boolean = 11,
    Decimal = 14,
    Byte = 17,
    Array = 8192 + 12,
};

/// One value of any of the kinds above. Empty (never set) and Null (no value) are two things. Text is UTF-8.
///
///     Variant v = std::int16_t{7};
///     v.text();                    // "7"
///     compare(v, Variant("7"));    // see `compare`
class Variant {
  public:
    /// Nothing has been assigned.
    struct EmptyValue {
        friend bool operator==(EmptyValue, EmptyValue) = default;
    };
    /// No value: what an empty cell of a table holds.
    struct NullValue {
        friend bool operator==(NullValue, NullValue) = default;
    };

    /// Empty.
    Variant() = default;

    /// Of the kind that belongs to the C++ type. A 64-bit number has none.
    Variant(NullValue) : mValue(NullValue{}) {}
    Variant(bool v) : mValue(v) {}
    Variant(std::uint8_t v) : mValue(v) {}
    Variant(std::int16_t v) : mValue(v) {}
    Variant(std::int32_t v) : mValue(v) {}
    Variant(float v) : mValue(v) {}
    Variant(double v) : mValue(v) {}
    Variant(Currency v) : mValue(v) {}
    Variant(Decimal v) : mValue(v) {}
    Variant(Date v) : mValue(v) {}
    Variant(std::string v) : mValue(std::move(v)) {}
    Variant(std::string_view v) : mValue(std::string(v)) {}
    Variant(const char* v) : mValue(std::string(v ? v : "")) {} ///< a null pointer is an empty text
    Variant(VariantArray v);

    /// Null.
    static Variant null() { return Variant(NullValue{}); }

    /// The kind of value held now.
    VarType type() const;
    bool isEmpty() const { return std::holds_alternative<EmptyValue>(mValue); }
    bool isNull() const { return std::holds_alternative<NullValue>(mValue); }
    bool isText() const { return std::holds_alternative<std::string>(mValue); }
    bool isArray() const { return std::holds_alternative<std::shared_ptr<VariantArray>>(mValue); }

    /// The value's text in the en-US forms: "True"/"False", numbers in their plain form ("2.5", "1E+15"),
    /// dates in the general date form, Empty as "". InvalidUseOfNull for Null, TypeMismatch for an array.
    std::string text() const;

    /// The text joined to an empty text: as `text`, but Null gives "".
    std::string textOrEmpty() const;

    /// The text itself, without a copy. TypeMismatch when this is not text.
    const std::string& asText() const;

    /// Makes this a text, keeping the storage of a text that is already there.
    void setText(std::string_view text) {
        if (auto* held = std::get_if<std::string>(&mValue))
            held->assign(text);
        else
            mValue.emplace<std::string>(text);
    }

    /// Numeric conversions: from numbers, booleans (True is -1), dates (the day number), Empty (0) and
    /// numeric text. Fractions round half to even. Overflow when it does not fit, TypeMismatch for other text
    /// and for arrays, InvalidUseOfNull for Null.
    std::int16_t toInt16() const;
    std::int32_t toInt32() const;
    float toSingle() const;
    double toDouble() const;

    /// True for any number but 0, and for the texts "True" and numeric texts other than 0; False for "False".
    /// Errors as above.
    bool toBoolean() const;

    /// From a date, a number (a day number), or text that reads as a date, else as a number. Empty is the
    /// zero date. Errors as above.
    Date toDate() const;

    /// The array held. TypeMismatch when this is not one.
    const VariantArray& array() const;
    /// The same for writing: other holders of a copied array are not touched.
    VariantArray& array();

    /// Same kind and same value; for the ordering of unlike kinds see `compare`.
    friend bool operator==(const Variant& a, const Variant& b);

    /// One type for each kind of value.
    using Storage =
        std::variant<EmptyValue, NullValue, std::int16_t, std::int32_t, float, double, Currency, Date,
                     std::string, bool, Decimal, std::uint8_t, std::shared_ptr<VariantArray>>;
    /// The value, for a `std::visit` of every kind.
    const Storage& storage() const { return mValue; }

  private:
    Storage mValue;
};

/// The result of comparing two variants; `Null` when either is Null.
enum class Comparison { Less, Equal, Greater, Null };

/// Numbers compare by value, texts in the order of `compareTexts`; any number, boolean or date is less than
/// any text. Empty is 0 beside a number and "" beside a text, True is -1, a date is its day number. A double
/// or date beside a single counts with a single's precision; a fraction beside a currency with four decimals,
/// beside a decimal with the 15 (7 for a single) digits it stands for. TypeMismatch for arrays, unless the
/// other side is Null.
Comparison compare(const Variant& a, const Variant& b);

} // namespace Korvane
