#include "ado/Engine.h"
#include "support/CaseTable.h"

#include <korvane/runtime/Text.h>

#include <gmock/gmock.h>

namespace Korvane::ado::Testing {

using Korvane::Testing::quotedText;
using Korvane::Testing::readCases;

class Values : public OnEveryEngine {
  protected:
    void insert(const std::string& column, const std::string& literal) {
        const char* key = column == "ID" ? "Size" : "ID";
        mDb->Execute("Insert into Visit ([" + std::string(key) + "],[" + column + "])  values (1," + literal +
                     ")");
    }
    void update(const std::string& column, const std::string& literal) {
        mDb->Execute("Update Visit Set [" + column + "]=" + literal);
    }
};

TEST_P(Values, LandInTheTypeOfTheirColumnOrAreRefused) {
    for (const auto& row : readCases("stored.tsv")) {
        const std::string &column = row[0], &literal = row[1];
        SCOPED_TRACE(column + " = " + literal);
        mDb->Execute("Delete From Visit");
        const auto stored = [&] { return one("Select " + column + " From Visit"); };
        if (row.size() == 3) {
            EXPECT_EQ(std::to_string(errorOf([&] { insert(column, literal); })), row[2]);
            EXPECT_EQ(stored(), "(none)");
            mDb->Execute("Insert into Visit (ID) values (1)");
            const std::string before = stored();
            EXPECT_EQ(std::to_string(errorOf([&] { update(column, literal); })), row[2]);
            EXPECT_EQ(stored(), before);
            continue;
        }
        insert(column, literal);
        EXPECT_EQ(stored(), row[2]);
        update(column, "Null");
        update(column, literal);
        EXPECT_EQ(stored(), row[2]);
        EXPECT_EQ(
            std::to_string(static_cast<int>(query("Select " + column + " From Visit")->Value(0).type())),
            row[3]);
    }
    const std::string said = raised([&] { update("Day", "'" + std::string(500, 'x') + "'"); }).Description();
    EXPECT_THAT(lowerCase(said), testing::HasSubstr("column day"));
    EXPECT_THAT(said, testing::HasSubstr("xxx..."));
    EXPECT_LT(said.size(), 200U);
}

TEST_P(Values, OfTextComeBackByteForByte) {
    std::vector<std::string> texts{std::string(40000, 'x') + "'" + std::string(10, 'y')};
    for (const auto& row : readCases("hostiletexts.tsv"))
        texts.push_back(quotedText(row[0]));
    int id = 0;
    for (const std::string& text : texts) {
        SCOPED_TRACE(text.substr(0, 40));
        const std::string key = std::to_string(++id);
        mDb->Execute("Insert into Visit ([ID],[Note])  values (" + key + ",'" + escapeQuotes(text) + "')");
        EXPECT_EQ(one("Select Note From Visit Where ID=" + key), text);
        mDb->Execute("Update Visit Set [Name]='',[Note]='" + escapeQuotes(text) + "' Where ID='" + key + "'");
        EXPECT_EQ(one("Select ID From Visit Where Note='" + escapeQuotes(text) + "'"), key);
    }
    EXPECT_EQ(errorOf([&] {
                  mDb->Execute({"Delete From Visit\0 Where ID=0", 29});
              }),
              RuntimeError::InvalidArgument);
    EXPECT_EQ(one("Select Count(*) From Visit"), std::to_string(id)) << "not cut at the NUL";
    const auto note = [&](const std::string& text) {
        mDb->Execute("Update Visit Set [Note]='" + text + "'");
    };
    EXPECT_EQ(errorOf([&] { note("\xFF not UTF-8"); }),
              mEngine->keepsAnyBytes() ? 0 : RuntimeError::InvalidArgument);
    EXPECT_EQ(errorOf([&] { note({'a', '\0', 'b'}); }), RuntimeError::InvalidArgument);
}

INSTANTIATE_TEST_SUITE_P(Engines, Values, testing::ValuesIn(engines()), engineName);

} // namespace Korvane::ado::Testing
