#include <korvane/nip/cNIP.h>

#include "support/Errors.h"
#include "support/NipDatabase.h"

namespace Korvane {

using namespace Testing;

namespace {

using cNIPTest = NipTest;

} // namespace

TEST_F(cNIPTest, KeepsToTheBoundsOfItsTable) {
    nips.group(2, "One", "NIP_Custom1");
    nips.group(3, "Two", "NIP_Custom2");
    nips.define(2, "A");
    nips.define(2, "B");
    nips.define(3, "C");
    EXPECT_EQ(errorOf([&] { nip.fieldName(1, 1); }), RuntimeError::SubscriptOutOfRange)
        << "nothing is loaded";
    loadStructure();

    EXPECT_EQ(nip.Caption(-1, 9), "");
    EXPECT_EQ(nip.RowIndex(9, -1), 0);
    EXPECT_EQ(nip.FieldCount(-1), 0);
    EXPECT_EQ(nip.GroupName(-1), "");
    EXPECT_EQ(nip.fieldName(0, 0), "");
    EXPECT_EQ(nip.fieldName(2, 2), "") << "behind the last field of a shorter group";
    const std::function<void()> outside[] = {[&] { nip.fieldName(3, 1); },   [&] { nip.fieldName(1, 3); },
                                             [&] { nip.RowCount(3); },       [&] { nip.value(-1, 1, "x"); },
                                             [&] { nip.value(1, -1, "x"); }, [&] { nip.value(2, 3, "x"); }};
    for (const auto& use : outside)
        EXPECT_EQ(errorOf(use), RuntimeError::SubscriptOutOfRange);
    nip.value(2, 2, "x");
    nip.value(0, 0, "y");
    EXPECT_EQ(nip.value(2, 2), Variant("x"));
    EXPECT_EQ(nip.value(0, 0), Variant("y"));
    EXPECT_EQ(nip.FieldCount(2), 1);
}

TEST_F(cNIPTest, KeepsItsPropertiesApart) {
    nips.group(2, "One", "NIP_Custom1");
    nips.define(2, "A");
    loadStructure();
    const Variant list = VariantArray{0, {Variant("x"), Variant(2)}};
    nip.Caption(1, 1, "caption");
    nip.displayType(1, 1, "LIST");
    nip.Ordinal(1, 1, 9.5F);
    nip.ValueList(1, 1, list);
    EXPECT_EQ(nip.Caption(1, 1) + nip.displayType(1, 1), "captionLIST");
    EXPECT_EQ(nip.Ordinal(1, 1), 9.5F);
    EXPECT_EQ(nip.ValueList(1, 1), list);

    using Get = std::int16_t (cNIP::*)(std::int16_t, std::int16_t) const;
    using Let = void (cNIP::*)(std::int16_t, std::int16_t, std::int16_t);
    const struct {
        Get get;
        Let let;
    } numbers[] = {{&cNIP::maxLength, &cNIP::maxLength},
                   {&cNIP::ControlIndex, &cNIP::ControlIndex},
                   {&cNIP::ControlIndexLabel, &cNIP::ControlIndexLabel},
                   {&cNIP::InitialValueRule, &cNIP::InitialValueRule},
                   {&cNIP::RowIndex, &cNIP::RowIndex},
                   {&cNIP::ColIndex, &cNIP::ColIndex},
                   {&cNIP::ValueListCount, &cNIP::ValueListCount},
                   {&cNIP::ChoiceListCount, &cNIP::ChoiceListCount}};
    for (std::int16_t i = 0; const auto& number : numbers)
        (nip.*number.let)(1, 1, ++i);
    for (std::int16_t i = 0; const auto& number : numbers)
        EXPECT_EQ((nip.*number.get)(1, 1), ++i);
}

} // namespace Korvane
