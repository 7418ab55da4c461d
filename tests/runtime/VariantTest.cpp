#include <korvane/runtime/Variant.h>

#include "support/CaseTable.h"
#include "support/CaseValue.h"
#include "support/Errors.h"

#include <limits>

using namespace Korvane;
using namespace Korvane::Testing;

namespace {

const Variant array{VariantArray{1, {std::int16_t{4}, std::int16_t{9}}}};

/// What a value becomes, as text, or "!" and the number of the error.
std::string converted(const Variant& value, const std::string& to) {
    try {
        if (to == "int16") return std::to_string(value.toInt16());
        if (to == "int32") return std::to_string(value.toInt32());
        if (to == "single") return Variant(value.toSingle()).text();
        if (to == "double") return Variant(value.toDouble()).text();
        if (to == "boolean") return Variant(value.toBoolean()).text();
        return value.toDate().isoText();
    } catch (const RuntimeError& error) {
        return "!" + std::to_string(error.Number());
    }
}

} // namespace

TEST(Variant, WritesItsTextAsTheTableSays) {
    for (const auto& row : readCases("totext.tsv"))
        EXPECT_EQ(caseValue(row[0], row[1]).text(), quotedText(row[2])) << row[0] << ' ' << row[1];
    EXPECT_EQ(errorOf([] { (void)Variant::null().text(); }), RuntimeError::InvalidUseOfNull);
    EXPECT_EQ(Variant::null().textOrEmpty(), "");
    EXPECT_EQ(errorOf([] { (void)array.textOrEmpty(); }), RuntimeError::TypeMismatch);
}

TEST(Variant, BecomesWhatTheTableSays) {
    for (const auto& row : readCases("conversions.tsv"))
        EXPECT_EQ(converted(caseValue(row[1], row[2]), row[0]), row[3])
            << row[0] << ' ' << row[1] << ' ' << row[2];
    EXPECT_EQ(converted(array, "int16"), "!13");
}

TEST(Variant, KeepsTheStorageOfATextThatIsReplaced) {
    Variant value = std::string(100, 'x');
    const char* storage = value.asText().data();
    value.setText("short");
    EXPECT_EQ(value.asText(), "short");
    EXPECT_EQ(value.asText().data(), storage);
    Variant number = 7;
    number.setText("seven");
    EXPECT_EQ(number, Variant("seven"));
    EXPECT_EQ(errorOf([] { (void)Variant(7).asText(); }), RuntimeError::TypeMismatch);
}

TEST(Variant, SharesAnArrayUntilOneHolderWritesIt) {
    Variant copy = array;
    EXPECT_EQ(copy, array);
    copy.array().at(2) = std::int16_t{5};
    EXPECT_EQ(array.array().at(2), Variant(std::int16_t{9}));
    EXPECT_EQ(copy.array().at(2), Variant(std::int16_t{5}));
    EXPECT_NE(copy, array);
    EXPECT_EQ(array.array().upperBound(), 2);
    for (const std::int32_t outside : {0, 3, std::numeric_limits<std::int32_t>::min()})
        EXPECT_EQ(errorOf([&] { (void)array.array().at(outside); }), RuntimeError::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { (void)Variant(1).array(); }), RuntimeError::TypeMismatch);
}
