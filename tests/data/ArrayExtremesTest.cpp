#include <korvane/data/ArrayExtremes.h>

#include "support/Errors.h"

#include <vector>

using namespace Korvane;
using Korvane::Testing::errorOf;

namespace {

Variant array(std::int32_t lowerBound, std::vector<Variant> elements) {
    return VariantArray{lowerBound, std::move(elements)};
}

const Variant kNone = std::int16_t{-1};

int errorOfMax(const Variant& values) {
    return errorOf([&] { ArrayMax(values); });
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
    EXPECT_EQ(errorOfMax(array(32767, {1})), 0);
    EXPECT_EQ(errorOfMax(array(32767, {1, 2})), RuntimeError::Overflow);
    EXPECT_EQ(errorOfMax(array(-32769, {1, 2})), RuntimeError::Overflow);
    EXPECT_EQ(errorOfMax(array(2147483647, {1, 2})), RuntimeError::Overflow);
    EXPECT_EQ(errorOfMax(Variant(3)), RuntimeError::TypeMismatch);
    EXPECT_EQ(errorOfMax(array(0, {})), RuntimeError::SubscriptOutOfRange);
}
