#pragma once

#include <korvane/ado/sql/Meeting.h>
#include <korvane/ado/sql/Statement.h>
#include <korvane/ado/sql/Translation.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane::ado::sql {

/// Turns one statement of the library's dialect into an engine's own: values take the form of the column that
/// they meet, `Top n` becomes a Limit. What is particular to an engine is in a class derived from it, which
/// says how values are written and may edit more.
class Translator {
  public:
    Translator(std::string_view text, const Tables& tables)
        : mText(text), mTables(tables), mStatement(analyse(text)) {}
    virtual ~Translator() = default;
    Translator(const Translator&) = delete;
    Translator& operator=(const Translator&) = delete;

    /// Raises what `toColumn` raises. With `addedColumns` (such as ",[ID]") the outermost select list gets
    /// these behind its own. To be called once.
    Translation run(std::string_view addedColumns);

  protected:
    /// A value as it is written in the engine's statements.
    virtual std::string literalText(const ColumnValue& value) const = 0;
    /// The same where it is compared with a column.
    virtual std::string comparedText(const ColumnValue& value, const ColumnInfo&) const {
        return literalText(value);
    }
    /// Whether a number that meets a text column has to be written as a text.
    virtual bool quotesNumbersForText() const { return false; }
    /// What stands for the parameter of that number, counted from 1.
    virtual std::string parameterText(std::size_t number) const;
    /// Further edits, made behind those of values.
    virtual void editMore() {}

    const Statement& statement() const { return mStatement; }
    const Tables& tables() const { return mTables; }
    std::string_view textOf(std::size_t first, std::size_t last) const;
    void replace(std::size_t first, std::size_t last, std::string text);
    /// Inserts behind a token.
    void insertBehind(std::size_t token, std::string text);

  private:
    struct Edit {
        std::size_t begin;
        std::size_t end;
        std::string text;
    };

    std::size_t beginOf(std::size_t token) const;
    std::size_t endOf(std::size_t token) const;
    void value(std::size_t at);
    bool isTruth(std::size_t at) const;
    void parameter(std::size_t at);
    void noteStored(const Meeting& met);
    void inText(std::size_t at);
    std::optional<Literal> read(std::size_t at, bool negative) const;
    void cut(std::size_t first, std::size_t last);
    void insertBefore(std::size_t token, std::string text);
    std::string edited();

    std::string_view mText;
    const Tables& mTables;
    Statement mStatement;
    Translation mResult;
    std::vector<Edit> mEdits;
    std::string mScratch;
};

} // namespace Korvane::ado::sql
