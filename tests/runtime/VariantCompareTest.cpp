#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Variant.h>

#include "support/CaseTable.h"
#include "support/CaseValue.h"

#include <gtest/gtest.h>

#include <map>

using namespace Korvane;
using namespace Korvane::Testing;

namespace {

const std::map<std::string, Comparison> results = {{"lt", Comparison::Less},
                                                   {"eq", Comparison::Equal},
                                                   {"gt", Comparison::Greater},
                                                   {"null", Comparison::Null}};

Comparison reversed(Comparison c) {
    if (c == Comparison::Less) return Comparison::Greater;
    return c == Comparison::Greater ? Comparison::Less : c;
}

} // namespace

TEST(Compare, FollowsTheTableInBothDirections) {
    for (const auto& row : readCases("compare.tsv")) {
        SCOPED_TRACE(row[0] + ' ' + row[1] + " with " + row[2] + ' ' + row[3]);
        const Variant left = caseValue(row[0], row[1]), right = caseValue(row[2], row[3]);
        const Comparison expected = results.at(row[4]);
        EXPECT_EQ(compare(left, right), expected);
        EXPECT_EQ(compare(right, left), reversed(expected));
    }
}

TEST(Compare, FindsZeroOfEveryKindAlikeAndBelowEveryText) {
    const std::vector<Variant> zeros = {Variant(),  std::int16_t{0}, 0,         0.0F,  0.0,
                                        Currency{}, Date(),          Decimal{}, false, std::uint8_t{0}};
    for (const Variant& a : zeros) {
        for (const Variant& b : zeros)
            EXPECT_EQ(compare(a, b), Comparison::Equal) << a.text() << ' ' << b.text();
        EXPECT_EQ(compare(a, "-1"), Comparison::Less) << a.text();
        EXPECT_EQ(compare(a, Variant::null()), Comparison::Null) << a.text();
        EXPECT_THROW((void)compare(a, Variant(VariantArray{})), RuntimeError) << a.text();
    }
}
