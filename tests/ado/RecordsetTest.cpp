#include "ado/Engine.h"

#include <korvane/runtime/RuntimeError.h>

#include <functional>

namespace Korvane::ado::Testing {

class Recordsets : public OnEveryEngine {
  protected:
    void SetUp() override {
        OnEveryEngine::SetUp();
        if (mDb) {
            mDb->Execute("Insert into Visit ([ID],[Name],[Day],[Size]) values "
                         "(1,'a','1/1/2026',1),(2,'b','1/2/2026',2),(3,'c','1/3/2026',3)");
        }
    }
    std::shared_ptr<Recordset> writable(std::string_view statement) {
        return query(statement, CursorType::Dynamic, LockType::Optimistic);
    }
};

TEST_P(Recordsets, GiveWhatTheirCursorTypeOffers) {
    using R = Recordset;
    const struct {
        CursorType asked;
        LockType lock;
        CursorType given;
        bool bookmarks, updates;
        std::int32_t count;
    } cases[] = {
        {CursorType::ForwardOnly, LockType::ReadOnly, CursorType::ForwardOnly, false, false, -1},
        {CursorType::Static, LockType::ReadOnly, CursorType::Static, true, false, 3},
        {CursorType::Dynamic, LockType::Optimistic, CursorType::Keyset, true, true, 3},
        {CursorType::Keyset, LockType::ReadOnly, CursorType::Keyset, true, false, 3},
    };
    for (const auto& c : cases) {
        const auto rs = query("Select * From Visit", c.asked, c.lock);
        EXPECT_EQ(rs->CursorType(), c.given);
        EXPECT_EQ(rs->LockType(), c.lock);
        EXPECT_EQ(rs->Supports(R::Bookmark), c.bookmarks);
        EXPECT_EQ(rs->Supports(R::Updating), c.updates);
        EXPECT_EQ(rs->Supports(R::Updating + R::Bookmark), c.updates && c.bookmarks);
        EXPECT_EQ(rs->RecordCount(), c.count);
        std::string walked;
        for (; !rs->Eof(); rs->MoveNext())
            walked += rs->Value("name").text();
        EXPECT_EQ(walked, "abc");
        EXPECT_EQ(errorOf([&] { rs->MoveNext(); }), RuntimeError::NoCurrentRecord);
        EXPECT_EQ(errorOf([&] { rs->Value(0); }), RuntimeError::NoCurrentRecord);
        EXPECT_EQ(errorOf([&] { rs->CursorType(CursorType::Static); }), RuntimeError::ObjectOpen);
        EXPECT_EQ(errorOf([&] { rs->Open("Select 1", mDb); }), RuntimeError::ObjectOpen);
        rs->Close();
        EXPECT_EQ(rs->CursorType(), c.asked);
    }
}

TEST_P(Recordsets, ThatAreClosedRefuseWhatNeedsRows) {
    const auto rs = Recordset::create();
    const std::function<void()> uses[] = {[&] { rs->Close(); }, [&] { rs->MoveNext(); },
                                          [&] { rs->Fields(0); }, [&] { rs->Update(); },
                                          [&] { rs->Value("a"); }};
    for (const auto& use : uses)
        EXPECT_EQ(errorOf(use), RuntimeError::ObjectClosed);
    EXPECT_EQ(errorOf([&] { rs->Open("Select 1", nullptr); }), RuntimeError::InvalidConnection);
    rs->Open("Delete From Visit Where ID=3", mDb);
    EXPECT_EQ(rs->State(), 0);
    EXPECT_EQ(one("Select Count(*) From Visit"), "2");
}

TEST_P(Recordsets, KnowTheirFields) {
    auto rs = query(
        "Select ID, Name as [Full Name], Note, [Day], Done, [Size], Amount, Price, 'x' as Name From Visit");
    const std::pair<DataType, int> types[] = {{DataType::Integer, 0},      {DataType::VarWChar, 50},
                                              {DataType::LongVarWChar, 0}, {DataType::Date, 0},
                                              {DataType::Boolean, 0},      {DataType::SmallInt, 0},
                                              {DataType::Double, 0},       {DataType::Currency, 0}};
    ASSERT_EQ(rs->FieldCount(), 9);
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(rs->Fields(i).Type(), types[i].first) << i;
        EXPECT_EQ(rs->Fields(i).DefinedSize(), types[i].second) << i;
    }
    EXPECT_EQ(rs->Fields("FULL NAME").Value().text(), "a");
    EXPECT_EQ(rs->Fields(Variant("full name")).Name(), "Full Name");
    EXPECT_EQ(rs->Value(Variant(std::int16_t{8})).text(), "x");
    for (const FieldKey& key :
         {FieldKey("Nam"), FieldKey(""), FieldKey(9), FieldKey(-1), FieldKey(Variant::null())})
        EXPECT_EQ(errorOf([&] { rs->Fields(key); }), RuntimeError::ItemNotFound) << key.text();

    const Field field = rs->Fields("ID");
    rs->MoveNext();
    EXPECT_EQ(field.Value().text(), "2");
    EXPECT_EQ(errorOf([&] { field.Value(5); }), RuntimeError::ReadOnlyRecordset);
    rs->Close();
    rs->Open("Select ID From Visit", mDb);
    EXPECT_EQ(errorOf([&] { field.Name(); }), RuntimeError::ObjectClosed); // of another opening
    rs.reset();
    EXPECT_EQ(errorOf([&] { field.Value(); }), RuntimeError::ObjectClosed);
}

TEST_P(Recordsets, WriteChangedFieldsBackByTheKeyOfTheTable) {
    // The key need not be among the fields.
    const auto rs = writable("Select Top 2 Name, [Day] as Moment, [Size] From Visit Where ID>1 Order By ID");
    EXPECT_EQ(rs->FieldCount(), 3);
    EXPECT_EQ(errorOf([&] { rs->Value("ID"); }), RuntimeError::ItemNotFound);
    rs->SetValue("name", "it's");
    rs->SetValue("Moment", "11/15/2026 5:21:51 PM");
    rs->Fields("Size").Value("12");
    EXPECT_EQ(rs->Value("Name").text(), "it's");
    EXPECT_EQ(one("Select Name From Visit Where ID=2"), "b"); // not before Update
    rs->Update();
    EXPECT_EQ(one("Select Name From Visit Where ID=2"), "it's");
    EXPECT_EQ(rs->Value("Moment").type(), VarType::Date);
    EXPECT_EQ(rs->Value("Size").type(), VarType::Int16);
    mDb->Execute("Update Visit Set [Name]='by another' Where ID=2");
    rs->SetValue("Size", Variant::null());
    rs->MoveNext(); // writes it; and only that
    EXPECT_EQ(one("Select Name From Visit Where ID=2 And Size Is Null"), "by another");
    rs->SetValue("Name", "dropped");
    rs->CancelUpdate();
    rs->SetValue("Size", 30);
    rs->MoveNext();
    EXPECT_TRUE(rs->Eof());
    EXPECT_EQ(one("Select Name From Visit Where Size=30 And ID=3"), "c");
    EXPECT_EQ(one("Select Name From Visit Where ID=1"), "a");
}

TEST_P(Recordsets, LetTextsAndWholeNumbersBeSeenAsTheyAre) {
    mDb->Execute("Insert into Visit ([ID],[Name],[Note],[Day],[Done],[Size],[Amount],[Price]) values "
                 "(2000000000,'it''s ','','1/4/2026',True,-32768,1,1)");
    const auto rs = query("Select * From Visit Where ID>9");
    std::string seen;
    for (int i = 0; i < rs->FieldCount(); ++i) {
        if (rs->FieldType(i) == DataType::Boolean) continue; // which is a number to some engines
        const CellView cell = rs->Peek(i);
        if (const auto* text = std::get_if<std::string_view>(&cell)) seen += std::string(*text) + ";";
        if (const auto* whole = std::get_if<std::int64_t>(&cell)) seen += std::to_string(*whole) + ";";
    }
    EXPECT_EQ(seen, "2000000000;it's ;;-32768;");
    EXPECT_EQ(rs->Value("Price"), Variant(Currency{10000}));
    EXPECT_EQ(rs->Peek("Rank").index(), 0u) << "no such field";
    rs->MoveNext();
    EXPECT_EQ(rs->Peek("ID").index(), 0u) << "at the end";

    const auto written = writable("Select Name From Visit Where ID=1");
    const auto mayLookAs = [&](std::string_view text) {
        const CellView cell = written->Peek("Name");
        return cell.index() == 0 || cell == CellView(text);
    };
    written->SetValue("Name", "new");
    EXPECT_TRUE(mayLookAs("new"));
    written->Update();
    EXPECT_TRUE(mayLookAs("new"));
}

TEST_P(Recordsets, KeepChangesThatCannotBeWritten) {
    const auto rs = writable("Select * From Visit Order By ID");
    rs->SetValue("Day", "not a day");
    EXPECT_EQ(errorOf([&] { rs->Update(); }), RuntimeError::TypeMismatch);
    EXPECT_EQ(rs->Value("Day").text(), "not a day"); // still pending
    rs->CancelUpdate();
    EXPECT_EQ(rs->Value("Day").text(), "1/1/2026");
    const std::string cut("a\0b", 3); // for who takes it to end there
    rs->SetValue("Name", cut);
    EXPECT_EQ(errorOf([&] { rs->Update(); }), mEngine->keepsAnyBytes() ? 0 : RuntimeError::InvalidArgument);
    EXPECT_EQ(one("Select Name From Visit Where ID=1"), mEngine->keepsAnyBytes() ? cut : "a");
    rs->CancelUpdate();

    rs->SetValue("ID", 3);
    EXPECT_EQ(errorOf([&] { rs->Update(); }), RuntimeError::DuplicateKey);
    rs->SetValue("ID", 9);
    rs->Update();
    rs->SetValue("Name", "found by its new key");
    rs->Update();
    EXPECT_EQ(one("Select ID From Visit Where Name='found by its new key'"), "9");

    mDb->Execute("Delete From Visit Where ID=9");
    rs->SetValue("Name", "late");
    EXPECT_EQ(errorOf([&] { rs->MoveNext(); }), RuntimeError::DatabaseFailure);
    EXPECT_EQ(rs->Value("Name").text(), "late");
    rs->Close(); // drops it
    EXPECT_EQ(one("Select Count(*) From Visit"), "2");
}

INSTANTIATE_TEST_SUITE_P(Engines, Recordsets, testing::ValuesIn(engines()), engineName);

} // namespace Korvane::ado::Testing
