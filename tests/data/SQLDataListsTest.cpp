#include <korvane/data/SQLData.h>

#include "support/RecordingInteraction.h"
#include "support/ScratchDir.h"

#include <gtest/gtest.h>

using namespace Korvane;
using namespace Korvane::Testing;

TEST(SQLDataLists, QuoteAndConvertByTheKindOfTheValue) {
    const struct {
        Variant value;
        std::int32_t quoting, settled;
        std::string inserted, updated;
    } cases[] = {
        {Variant(), -1, 1, "''", "=''"},
        {Variant::null(), -1, 0, "0", "="},
        {Variant::null(), 1, 1, "''", "=''"},
        {std::int16_t{-7}, -1, 0, "-7", "=-7"},
        {-2147483647 - 1, -1, 0, "-2147483648", "=-2147483648"},
        {12, 1, 1, "'12'", "='12'"},
        {2.5f, -1, 0, "2.5", "=2.5"},
        {2.5, -1, 1, "'2.5'", "='2.5'"},
        {2.5, 0, 0, "2.5", "=2.5"},
        {true, -1, 0, "True", "=True"},
        {false, 1, 1, "'False'", "='False'"},
        {Currency{12500}, -1, 1, "'1.25'", "='1.25'"},
        {std::uint8_t{9}, -1, 1, "'9'", "='9'"},
        {Date::of(2026, 11, 15, 17, 21, 51), -1, 1, "'11/15/2026 5:21:51 PM'", "='11/15/2026 5:21:51 PM'"},
        {"it's", -1, 1, "'it''s'", "='it''s'"},
        {"'a''b'", -1, 1, "'''a''''b'''", "='''a''''b'''"},
        {"Now()", 0, 0, "Now()", "=Now()"},
        {"kept out", 2, 2, "", ""},
    };
    for (const auto& c : cases) {
        SQLData query;
        std::int32_t quoting = c.quoting;
        query.InsertListAdd("Dose.mg", c.value, quoting);
        EXPECT_EQ(quoting, c.settled) << c.inserted;
        EXPECT_EQ(query.InsertListGet(), "([Dose.mg])  values (" + c.inserted + ")");
        quoting = c.quoting;
        query.UpdateListAdd("Dose.mg", c.value, quoting);
        EXPECT_EQ(quoting, c.settled) << c.updated;
        EXPECT_EQ(query.UpdateListGet(), "[Dose.mg]" + c.updated);
    }
}

TEST(SQLDataLists, GrowWithCommasAndAreClearedOneByOne) {
    SQLData query;
    query.InsertListAdd("a", 1);
    query.InsertListAdd("b", "x");
    query.UpdateListAdd("a", 1);
    query.UpdateListAdd("b", Variant::null(), Quoting::Bare);
    query.UpdateListAdd("c", "x");
    EXPECT_EQ(query.InsertListGet(), "([a],[b])  values (1,'x')");
    EXPECT_EQ(query.UpdateListGet(), "[a]=1,[b]=,[c]='x'");
    query.InsertListClear();
    EXPECT_EQ(query.InsertListGet(), "()  values ()");
    EXPECT_EQ(query.UpdateListGet(), "[a]=1,[b]=,[c]='x'");
    query.UpdateListClear();
    EXPECT_EQ(query.UpdateListGet(), "");
}

TEST(SQLDataLists, ReportAValueThatHasNoText) {
    ScratchDir dir(ScratchDir::AsAppPath);
    RecordedInteraction user;
    SQLData query;
    query.UpdateListAdd("a", VariantArray{});
    query.InsertListAdd("a", VariantArray{});
    query.InsertListAdd("b", "it's");
    EXPECT_EQ(query.UpdateListGet(), "[a]=");
    EXPECT_EQ(query.InsertListGet(), "([a],[b])  values ('it''s')") << "cannot be run";
    EXPECT_EQ(user->boxes.size(), 1u);
    ASSERT_TRUE(query.LastError());
    EXPECT_EQ(query.LastError()->Number(), RuntimeError::TypeMismatch);
}
