#include <korvane/data/SQLData.h>

#include "support/CaseTable.h"
#include "support/CaseValue.h"
#include "support/RecordingInteraction.h"
#include "support/ScratchDir.h"

#include <gtest/gtest.h>

using namespace Korvane;
using namespace Korvane::Testing;

TEST(SQLDataLists, QuoteAndConvertByTheKindOfTheValue) {
    for (const auto& row : readCases("sqllists.tsv")) {
        SCOPED_TRACE(row[0] + ' ' + row[1]);
        const Variant value = caseValue(row[0], row[1]);
        SQLData query;
        std::int32_t quoting = std::stoi(row[2]);
        query.InsertListAdd("Dose.mg", value, quoting);
        EXPECT_EQ(std::to_string(quoting), row[3]);
        EXPECT_EQ(query.InsertListGet(), "([Dose.mg])  values (" + row[4] + ")");
        quoting = std::stoi(row[2]);
        query.UpdateListAdd("Dose.mg", value, quoting);
        EXPECT_EQ(std::to_string(quoting), row[3]);
        EXPECT_EQ(query.UpdateListGet(), "[Dose.mg]" + row[5]);
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
