#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Variant.h>

#include "support/CaseTable.h"
#include "support/CaseValue.h"

#include <gtest/gtest.h>

#include <functional>

using namespace Korvane;
using namespace Korvane::Testing;

namespace {

/// The number of the error that an action raises; 0 for none.
int errorOf(const std::function<void()>& action) {
    try {
        action();
        return 0;
    } catch (const RuntimeError& e) {
        return e.Number();
    }
}

const Variant array{VariantArray{1, {std::int16_t{4}, std::int16_t{9}}}};

} // namespace

TEST(Variant, WritesItsTextAsTheTableSays) {
    for (const auto& row : readCases("totext.tsv"))
        EXPECT_EQ(caseValue(row[0], row[1]).text(), quotedText(row[2])) << row[0] << ' ' << row[1];
    EXPECT_EQ(errorOf([] { (void)Variant::null().text(); }), RuntimeError::InvalidUseOfNull);
    EXPECT_EQ(Variant::null().textOrEmpty(), "");
    EXPECT_EQ(errorOf([] { (void)array.textOrEmpty(); }), RuntimeError::TypeMismatch);
}

TEST(Variant, RoundsToWholeNumbersWithHalvesToEven) {
    const std::pair<Variant, int> cases[] = {{2.5, 2},
                                             {3.5, 4},
                                             {-2.5, -2},
                                             {2.500001, 3},
                                             {"2.5", 2},
                                             {true, -1},
                                             {{}, 0},
                                             {Currency{25000}, 2},
                                             {Currency{-35000}, -4},
                                             {Decimal{0, 150, 2, true}, -2},
                                             {"&H10", 16},
                                             {Date(3.7), 4},
                                             {std::uint8_t{255}, 255},
                                             {Decimal{0, 151, 2, false}, 2}};
    for (const auto& [value, whole] : cases) {
        EXPECT_EQ(value.toInt16(), whole) << value.text();
        EXPECT_EQ(value.toInt32(), whole) << value.text();
    }
}

TEST(Variant, RaisesWhatDoesNotFitAndWhatIsNoNumber) {
    EXPECT_EQ(Variant(32767.4).toInt16(), 32767);
    EXPECT_EQ(Variant("-2147483648").toInt32(), std::numeric_limits<std::int32_t>::min());
    const std::pair<Variant, int> cases[] = {
        {32767.5, RuntimeError::Overflow},
        {40000, RuntimeError::Overflow},
        {"1e300", RuntimeError::Overflow},
        {Decimal{0xFFFFFFFF, 0, 0, false}, RuntimeError::Overflow},
        {std::numeric_limits<double>::quiet_NaN(), RuntimeError::Overflow},
        {"True", RuntimeError::TypeMismatch},
        {"", RuntimeError::TypeMismatch},
        {array, RuntimeError::TypeMismatch},
        {Variant::null(), RuntimeError::InvalidUseOfNull}};
    for (const auto& [value, error] : cases)
        EXPECT_EQ(errorOf([&, &value = value] { (void)value.toInt16(); }), error)
            << static_cast<int>(value.type());
    EXPECT_EQ(errorOf([] { (void)Variant(2147483648.0).toInt32(); }), RuntimeError::Overflow);
    EXPECT_EQ(errorOf([] { (void)Variant(1e39).toSingle(); }), RuntimeError::Overflow);
    EXPECT_EQ(Variant(Decimal{0, 15, 1, true}).toDouble(), -1.5);
    EXPECT_EQ(Variant(Currency{15000}).toSingle(), 1.5F);
}

TEST(Variant, ReadsBooleansAndDates) {
    for (const Variant& yes : {Variant(true), Variant("tRUE"), Variant("-3"), Variant(0.1)})
        EXPECT_TRUE(yes.toBoolean()) << yes.text();
    for (const Variant& no : {Variant(), Variant("False"), Variant("0.0"), Variant(Date())})
        EXPECT_FALSE(no.toBoolean()) << no.text();
    EXPECT_EQ(errorOf([] { (void)Variant("yes").toBoolean(); }), RuntimeError::TypeMismatch);

    EXPECT_EQ(Variant("11/15/2026").toDate(), Date::of(2026, 11, 15));
    EXPECT_EQ(Variant("1").toDate(), Date::of(1899, 12, 31)); // no date, but a day number
    EXPECT_EQ(Variant(100000).toDate(), Date::of(2173, 10, 14));
    EXPECT_EQ(Variant().toDate(), Date());
    EXPECT_EQ(errorOf([] { (void)Variant("").toDate(); }), RuntimeError::TypeMismatch);
    EXPECT_EQ(errorOf([] { (void)Variant(3e6).toDate(); }), RuntimeError::Overflow);
}

TEST(Variant, KnowsItsKind) {
    const std::pair<Variant, VarType> cases[] = {{{}, VarType::Empty},
                                                 {Variant::null(), VarType::Null},
                                                 {std::int16_t{1}, VarType::Int16},
                                                 {1, VarType::Int32},
                                                 {1.0F, VarType::Single},
                                                 {1.0, VarType::Double},
                                                 {Currency{1}, VarType::Currency},
                                                 {Date(), VarType::Date},
                                                 {"1", VarType::Text},
                                                 {true, VarType::Boolean},
                                                 {Decimal{}, VarType::Decimal},
                                                 {std::uint8_t{1}, VarType::Byte},
                                                 {array, VarType::Array}};
    for (const auto& [value, type] : cases) {
        EXPECT_EQ(value.type(), type);
        EXPECT_EQ(value, Variant(value));
        EXPECT_NE(value, Variant("another"));
    }
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
