#include <korvane/nip/SqlName.h>

#include <korvane/ado/Connection.h>
#include <korvane/runtime/RuntimeError.h>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <string>
#include <vector>

namespace Korvane {

using namespace std::string_literals;

TEST(SqlName, BracketsOnlyWhatIsNoPlainName) {
    const std::pair<const char*, const char*> names[] = {
        {"Pulse", "Pulse"},       {"_a1", "_a1"},           {"Temp", "Temp"},     {"Temp-1", "[Temp-1]"},
        {"Dose.mg", "[Dose.mg]"}, {"Dose mg", "[Dose mg]"}, {"1st", "[1st]"},     {"Größe", "[Größe]"},
        {"a'b", "[a'b]"},         {"a[b", "[a[b]"},         {"Order", "[Order]"}, {"gRoUp", "[gRoUp]"},
        {"USER", "[USER]"},       {"Orders", "Orders"}};
    for (const auto& [name, written] : names)
        EXPECT_EQ(sqlName(name), written);
    for (const auto& impossible : {""s, "a]b"s, "a],(Select 1) As [b"s, "a\0b"s})
        EXPECT_THROW(sqlName(impossible), RuntimeError) << impossible;
}

TEST(SqlName, WritesEveryWordOfTheEngineAndTheDialectSoThatItIsAName) {
    const auto db = ado::open("sqlite::memory:");
    std::vector<std::string> words = {"Top", "Percent", "DistinctRow"};
    for (int i = 0; i < sqlite3_keyword_count(); ++i) {
        const char* text = nullptr;
        int length = 0;
        ASSERT_EQ(sqlite3_keyword_name(i, &text, &length), SQLITE_OK);
        words.emplace_back(text, static_cast<std::size_t>(length));
    }
    for (const std::string& word : words) {
        const std::string name = sqlName(word);
        SCOPED_TRACE(name);
        try {
            db->Execute("Create Table [" + word + "] ([EncounterID] INTEGER PRIMARY KEY, [" + word +
                        "] TEXT)");
            db->Execute("Insert Into " + name + "([" + word + "],[EncounterID])  values ('x',1)");
            const auto rows =
                db->openCursor("Select Top 1 " + name + " From " + name + " Where EncounterID=1",
                               ado::CursorType::ForwardOnly, ado::LockType::ReadOnly);
            Variant value;
            rows->value(0, value);
            EXPECT_EQ(value, Variant("x"));
        } catch (const RuntimeError& error) {
            ADD_FAILURE() << error.Description();
        }
    }
}

} // namespace Korvane
