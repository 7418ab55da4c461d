#include <korvane/data/ArrayExtremes.h>

#include <korvane/runtime/RuntimeError.h>

#include <gtest/gtest.h>

#include <vector>

using namespace Korvane;

namespace {

Variant array(std::int32_t lowerBound, std::vector<Variant> elements) {
    return VariantArray{lowerBound, std::move(elements)};
}

const Variant kNone = std::int16_t{-1};

int errorOf(const Variant& values) {
    try {
        ArrayMax(values);
        return 0;
    } catch (const RuntimeError& error) {
        return error.Number();
    }
}

} // namespace

TEST(ArrayExtremes, FindTheLargestAndSmallestByVariantComparison) {
    const struct {
        Variant values, largest, smallest;
    } cases[] = {
        {array(1, {4, 9, 2}), 9, 2},           {array(-1, {4, 9.5, 2}), 9.5, 2},
        {array(0, {"b", 700, "a"}), "b", 700}, {array(1, {3, Variant::null(), 5}), 5, 3},
        {array(0, {12}), kNone, kNone},        {array(-3, {1, 2, 8, 4}), kNone, kNone},
        {array(1, {}), kNone, kNone},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ArrayMax(c.values), c.largest);
        EXPECT_EQ(ArrayMin(c.values), c.smallest);
    }
}

TEST(ArrayExtremes, RaiseForWhatIsNoArrayOfSixteenBitBounds) {
    EXPECT_EQ(errorOf(array(32767, {1})), 0);
    EXPECT_EQ(errorOf(array(32767, {1, 2})), RuntimeError::Overflow);
    EXPECT_EQ(errorOf(array(-32769, {1, 2})), RuntimeError::Overflow);
    EXPECT_EQ(errorOf(array(2147483647, {1, 2})), RuntimeError::Overflow);
    EXPECT_EQ(errorOf(Variant(3)), RuntimeError::TypeMismatch);
    EXPECT_EQ(errorOf(array(0, {})), RuntimeError::SubscriptOutOfRange);
}
