#pragma once

#include <korvane/ado/sql/Literal.h>

#include <string>
#include <string_view>
#include <vector>

namespace Korvane::ado::sql {

/// Takes the values out of a statement, so that statements that differ in nothing else share one compiled
/// form.
///
///     Lifter lifter;
///     lifter.lift("Update T Set [A]='x' Where ID=7");
///     lifter.shape();      // "Update T Set [A]=? Where ID=?"
///     lifter.literals();   // text x, integer 7
///
/// Lifted are quoted text and plain integers (with their sign) in the Where of a Select, Update or Delete, in
/// the Set of an Update and in the Values of an Insert. Everything else stays: select lists, joins, Order By,
/// Group By, Top, Limit, names, other numbers, dates, Null, True and False, and any other statement as a
/// whole. A statement that has parameter marks of its own, or that does not end properly, stays as it is.
///
/// One is kept for many statements: its buffers are reused. What it hands out holds until the next `lift`,
/// and the literals refer to the statement's text.
class Lifter {
  public:
    void lift(std::string_view statement);
    /// Lifts nothing: the shape is the statement itself.
    void leave(std::string_view statement);

    std::string_view shape() const { return mLiterals.empty() ? mStatement : std::string_view(mShape); }
    const std::vector<Literal>& literals() const { return mLiterals; }

  private:
    std::string_view mStatement;
    std::string mShape;
    std::vector<Literal> mLiterals;
};

} // namespace Korvane::ado::sql
