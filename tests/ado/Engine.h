#pragma once

#include "support/Errors.h"

#include <korvane/ado/Recordset.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Korvane::ado::Testing {

/// What the conformance suite has to know of a database engine; every difference between two of them is a
/// member here.
class Engine {
  public:
    virtual ~Engine() = default;

    /// A connection to the engine's test database, which is empty at first. Every call opens another one.
    virtual std::shared_ptr<Connection> connect() = 0;

    /// Runs statements by a handle of the engine's own library, as another program would; the first value
    /// that the last of them gives, if it gives any.
    virtual std::string foreign(const std::string& statements) = 0;
    /// A connection to which that handle is lent.
    virtual std::shared_ptr<Connection> lend() = 0;
    /// A text with the engine's own words: {Date}, {Double} and {Currency} are types of columns, {schema} is
    /// where the tables are.
    std::string inItsWords(std::string text) const;

    /// Whether a text may hold bytes that are no UTF-8; otherwise they are refused.
    virtual bool keepsAnyBytes() const { return true; }

    /// How many bytes a name may have; 0 when there is no limit.
    virtual std::size_t longestName() const { return 0; }

  private:
    virtual std::vector<std::pair<std::string, std::string>> words() const = 0;
};

struct EngineChoice {
    std::string name;
    /// Makes the engine with a new, empty database. Null when its server is not there.
    std::function<std::unique_ptr<Engine>()> make;

    friend void PrintTo(const EngineChoice& choice, std::ostream* out) { *out << choice.name; }
};

/// All engines of this build. A new one joins the suite here.
std::vector<EngineChoice> engines();
/// For INSTANTIATE_TEST_SUITE_P.
std::string engineName(const testing::TestParamInfo<EngineChoice>& choice);

/// A test that runs on every engine, with the table `Visit` in place:
/// ID integer key, Name text(50), Note memo, Day date, Done boolean, Size smallint, Amount double, Price
/// currency.
class OnEveryEngine : public testing::TestWithParam<EngineChoice> {
  protected:
    void SetUp() override;

    std::shared_ptr<Recordset> query(std::string_view statement,
                                     CursorType cursorType = CursorType::ForwardOnly,
                                     LockType lockType = LockType::ReadOnly);
    std::string one(std::string_view statement);

    std::unique_ptr<Engine> mEngine;
    std::shared_ptr<Connection> mDb;
};

using Korvane::Testing::errorOf;
using Korvane::Testing::raised;
/// A query's rows.
std::shared_ptr<Recordset> opened(const std::shared_ptr<Connection>& db, std::string_view statement,
                                  CursorType cursorType = CursorType::ForwardOnly,
                                  LockType lockType = LockType::ReadOnly);
/// The first value of the first row, as text; "(null)" for null and "(none)" when there is no row.
std::string one(const std::shared_ptr<Connection>& db, std::string_view statement);

} // namespace Korvane::ado::Testing
