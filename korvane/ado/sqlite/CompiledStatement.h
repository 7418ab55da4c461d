#pragma once

#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace Korvane::ado::sqlite {

/// A compiled statement of the engine, finalized at the end of its life. Raises the engine's error.
class CompiledStatement {
  public:
    CompiledStatement() = default;
    /// Null inside when the text holds no statement. InvalidArgument when it holds a second one
    /// or is longer than the engine takes.
    CompiledStatement(sqlite3* handle, std::string_view text, bool keep = false);
    ~CompiledStatement();
    CompiledStatement(CompiledStatement&& other) noexcept;
    CompiledStatement& operator=(CompiledStatement&& other) noexcept;

    sqlite3_stmt* get() const { return mStatement; }
    explicit operator bool() const { return mStatement != nullptr; }

    /// To the next row; false behind the last, where the statement is made ready to run again.
    bool step();
    void reset();
    /// Text of a cell of the current row; empty for null.
    std::string_view text(int column) const;

  private:
    sqlite3_stmt* mStatement = nullptr;
};

} // namespace Korvane::ado::sqlite
