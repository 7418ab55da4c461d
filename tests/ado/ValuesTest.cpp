#include "ado/Engine.h"

#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

#include <gmock/gmock.h>

namespace Korvane::ado::Testing {

class Values : public OnEveryEngine {
  protected:
    /// Stores a literal in a column by an Insert and by an Update, and expects it to read as that text.
    void expectStored(const std::string& column, const std::string& literal, const std::string& text,
                      VarType type) {
        SCOPED_TRACE(column + " = " + literal);
        mDb->Execute("Delete From Visit");
        mDb->Execute("Insert into Visit ([ID],[" + column + "])  values (1," + literal + ")");
        EXPECT_EQ(one("Select " + column + " From Visit"), text);
        mDb->Execute("Update Visit Set [" + column + "]=Null");
        mDb->Execute("Update Visit Set [" + column + "]=" + literal + " Where ID=1");
        EXPECT_EQ(one("Select " + column + " From Visit"), text);
        EXPECT_EQ(query("Select " + column + " From Visit")->Value(0).type(), type);
    }
};

TEST_P(Values, LandInTheTypeOfTheirColumn) {
    const struct {
        const char* column;
        const char* literal;
        const char* text;
        VarType type;
    } cases[] = {
        {"Day", "'11/15/2026 5:21:51 PM'", "11/15/2026 5:21:51 PM", VarType::Date},
        {"Day", "'2026-11-15 17:21:51'", "11/15/2026 5:21:51 PM", VarType::Date},
        {"Day", "'15 Nov 2026'", "11/15/2026", VarType::Date},
        {"Day", "#11/15/2026#", "11/15/2026", VarType::Date},
        {"Day", "'1/2/1066'", "1/2/1066", VarType::Date},
        {"Day", "0", "12:00:00 AM", VarType::Date},
        {"Day", "2.25", "1/1/1900 6:00:00 AM", VarType::Date},
        {"Day", "''", "(null)", VarType::Null},
        {"Done", "True", "True", VarType::Boolean},
        {"Done", "'false'", "False", VarType::Boolean},
        {"Done", "-1", "True", VarType::Boolean},
        {"Done", "'2'", "True", VarType::Boolean},
        {"Done", "0", "False", VarType::Boolean},
        {"Done", "''", "(null)", VarType::Null},
        {"Size", "'-32768'", "-32768", VarType::Int16},
        {"Size", "' 12 '", "12", VarType::Int16},
        {"Size", "'1,200'", "1200", VarType::Int16},
        {"Size", "'1e2'", "100", VarType::Int16},
        {"Size", "''", "(null)", VarType::Null},
        {"Amount", "'2.5'", "2.5", VarType::Double},
        {"Amount", "'-3'", "-3", VarType::Double},
        {"Amount", "0.1", "0.1", VarType::Double},
        {"Amount", "7", "7", VarType::Double},
        {"Price", "'$1,234.5678'", "1234.5678", VarType::Currency},
        {"Name", "5", "5", VarType::Text},
        {"Name", "'005'", "005", VarType::Text},
        {"Name", "'11/15/2026'", "11/15/2026", VarType::Text},
        {"Name", "True", "True", VarType::Text},
        {"Name", "''", "", VarType::Text},
        {"Name", "Null", "(null)", VarType::Null},
    };
    for (const auto& c : cases)
        expectStored(c.column, c.literal, c.text, c.type);
}

TEST_P(Values, ThatCannotBeWhatTheColumnKeepsAreRefused) {
    const struct {
        const char* column;
        const char* literal;
        int number;
    } cases[] = {
        {"Day", "'next week'", RuntimeError::TypeMismatch},
        {"Day", "'13/45/2026'", RuntimeError::TypeMismatch},
        {"Done", "'maybe'", RuntimeError::TypeMismatch},
        {"Size", "'2.5'", RuntimeError::TypeMismatch},
        {"Size", "2.5", RuntimeError::TypeMismatch},
        {"Size", "'32768'", RuntimeError::Overflow},
        {"Size", "-32769", RuntimeError::Overflow},
        {"ID", "'2147483648'", RuntimeError::Overflow},
        {"Amount", "'12abc'", RuntimeError::TypeMismatch},
        {"Amount", "'1,2 3'", RuntimeError::TypeMismatch},
        {"Price", "'a lot'", RuntimeError::TypeMismatch},
        {"Day", "9999999", RuntimeError::Overflow},
    };
    mDb->Execute("Insert into Visit (ID) values (1)");
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.column) + " = " + c.literal);
        const std::string set = std::string("[") + c.column + "]=" + c.literal;
        EXPECT_EQ(errorOf([&] { mDb->Execute("Update Visit Set " + set); }), c.number);
        EXPECT_EQ(errorOf([&] {
                      mDb->Execute(std::string("Insert into Visit ([Note],[") + c.column + "]) values ('x'," +
                                   c.literal + ")");
                  }),
                  c.number);
        EXPECT_EQ(one("Select Count(*) From Visit"), "1");
    }
    try {
        mDb->Execute("Update Visit Set [Day]='" + std::string(500, 'x') + "'");
        FAIL() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_THAT(lowerCase(error.Description()), testing::HasSubstr("column day"));
        EXPECT_THAT(error.Description(), testing::HasSubstr("xxx..."));
        EXPECT_LT(error.Description().size(), 200U);
    }
}

TEST_P(Values, MeetTheirColumnsInAWhere) {
    mDb->Execute(
        "Insert into Visit ([ID],[Name],[Day],[Done],[Size]) values "
        "(1,'9','9/1/2026 8:00:00 AM',True,9),(2,'10','10/1/2026',False,10),(3,'x','12/31/2025',True,-5)");
    const struct {
        const char* where;
        const char* ids;
    } cases[] = {
        {"[Day] >= '1/1/2026'", "12"},
        {"'9/30/2026' > Visit.[Day]", "13"},
        {"[Day] Between '1/1/2026' And #9/30/2026#", "1"},
        {"[Day] In ('10/1/2026','12/31/2025')", "23"},
        {"[Day] Not In ('10/1/2026')", "13"},
        {"[Day] = ''", ""},
        {"Done = True", "13"},
        {"Done='False' And Size>'9'", "2"},
        {"Size < '9.5'", "13"},
        {"Size = -5 Or Size = '10'", "23"},
        {"(Size='9') Or (Name='x' And [Day]<'1/1/2026')", "13"},
        {"Size > '-99999'", "123"},
        {"Name > '5'", "13"},
        {"Name Like '1%'", "2"},
        {"Name like 'X'", "3"},
        {"Name Not Like '1' || '_'", "13"},
        {"Name Like '\\10'", ""},
        {"Name Like '!10' Escape '!'", "2"},
        {"[Day] Like '2026-1%'", "2"},
        {"Name='x' /* a 'comment' */ And Size<>0 -- Or 1=1", "3"},
        {"ID In (Select ID From Visit As v Where v.[Day]='10/1/2026')", "2"},
        {"Case When [Day]>'9/15/2026' Then 'late' Else 'early' End = 'late'", "2"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.where);
        std::string ids;
        for (const auto rs = query(std::string("Select ID From Visit Where ") + c.where); !rs->Eof();
             rs->MoveNext())
            ids += rs->Value("id").text();
        std::sort(ids.begin(), ids.end());
        EXPECT_EQ(ids, c.ids);
    }
    EXPECT_EQ(errorOf([&] { query("Select ID From Visit Where [Day]>'soon'"); }), RuntimeError::TypeMismatch);
}

TEST_P(Values, OfDatesSortByTime) {
    for (const char* day : {"2/1/2026", "10/1/2025", "1/15/2026 1:00:00 PM", "1/15/2026 9:00:00 AM"})
        mDb->Execute("Insert into Visit (ID,[Day]) Select Coalesce(Max(ID),0)+1, Null From Visit"),
            mDb->Execute(std::string("Update Visit Set [Day]='") + day + "' Where [Day] Is Null");
    std::string order;
    for (const auto rs = query("Select ID From Visit Order By [Day] DESC"); !rs->Eof(); rs->MoveNext())
        order += rs->Value(0).text();
    EXPECT_EQ(order, "1342");
    EXPECT_EQ(one("Select Top 1 ID From Visit Order By [Day]"), "2");
    mDb->Execute("Insert into Visit (ID) values (5)"); // Null is before all
    EXPECT_EQ(one("Select Top 1 ID From Visit Order By [Day]"), "5");
    EXPECT_EQ(one("Select Top 1 ID From Visit Order By [Day] DESC, ID"), "1");
    EXPECT_EQ(one("Select Max([Day]) From Visit"), "2/1/2026");
}

TEST_P(Values, OfTextComeBackByteForByte) {
    const std::string texts[] = {"it's",
                                 "''",
                                 "'",
                                 "--",
                                 "a -- b",
                                 "/* x */",
                                 "];[",
                                 "[bracketed]",
                                 "\"quoted\"",
                                 "?",
                                 ":name",
                                 "@p $p #1#",
                                 "line\r\nbreak\ttab",
                                 "\xF0\x9F\x98\x80 emoji",
                                 "\xC3\xA9",
                                 "x'; Drop Table Visit; --",
                                 "' Or '1'='1",
                                 "True",
                                 "1e5",
                                 " padded ",
                                 "\\",
                                 "%_",
                                 std::string(40000, 'x') + "'" + std::string(10, 'y')};
    int id = 0;
    for (const std::string& text : texts) {
        SCOPED_TRACE(text.substr(0, 40));
        const std::string key = std::to_string(++id);
        mDb->Execute("Insert into Visit ([ID],[Note])  values (" + key + ",'" + escapeQuotes(text) + "')");
        EXPECT_EQ(one("Select Note From Visit Where ID=" + key), text);
        mDb->Execute("Update Visit Set [Name]='',[Note]='" + escapeQuotes(text) + "' Where ID='" + key + "'");
        EXPECT_EQ(one("Select ID From Visit Where Note='" + escapeQuotes(text) + "'"), key);
    }
    EXPECT_EQ(one("Select Count(*) From Visit"), std::to_string(id));
    const auto note = [&](const std::string& text) {
        mDb->Execute("Update Visit Set [Note]='" + text + "'");
    };
    EXPECT_EQ(errorOf([&] { note("\xFF not UTF-8"); }),
              mEngine->keepsAnyBytes() ? 0 : RuntimeError::InvalidArgument);
    EXPECT_EQ(errorOf([&] { note({'a', '\0', 'b'}); }), RuntimeError::InvalidArgument);
}

TEST_P(Values, OfAnEmptyMaximumKeepTheTypeOfTheColumn) {
    const std::pair<const char*, DataType> cases[] = {
        {"Max(ID) as MaxID", DataType::Integer},    {"Max(Name)", DataType::VarWChar},
        {"Min(Visit.[Day])", DataType::Date},       {"max([Size]) As S", DataType::SmallInt},
        {"Max(v.Amount)", DataType::Double},        {"Count(*)", DataType::Integer},
        {"Max([visit].[Done])", DataType::Boolean}, {"Avg(Size)", DataType::Double}};
    for (const auto& [item, type] : cases) {
        SCOPED_TRACE(item);
        const std::string from =
            std::string(item).find("v.") == std::string::npos ? " From Visit" : " From Visit v";
        EXPECT_EQ(query(std::string("Select ") + item + from)->FieldType(0), type);
        EXPECT_EQ(
            query(std::string("Select 'x', ") + item + from + " Where Name like 'NIP_Custom%'")->FieldType(1),
            type);
    }
}

INSTANTIATE_TEST_SUITE_P(Engines, Values, testing::ValuesIn(engines()), engineName);

} // namespace Korvane::ado::Testing
