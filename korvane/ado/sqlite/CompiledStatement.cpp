#include <korvane/ado/sqlite/CompiledStatement.h>

#include <korvane/ado/StatementErrors.h>
#include <korvane/ado/sql/Lexer.h>
#include <korvane/ado/sqlite/Error.h>
#include <korvane/runtime/Translation.h>

#include <sqlite3.h>

#include <limits>
#include <utility>

namespace Korvane::ado::sqlite {

CompiledStatement::CompiledStatement(sqlite3* handle, std::string_view text, bool keep) {
    if (text.size() > std::size_t{std::numeric_limits<int>::max()})
        throw RuntimeError(RuntimeError::InvalidArgument,
                           Korvane::translate("Korvane::ado", "The statement is too long."));
    const char* tail = nullptr;
    const unsigned flags = keep ? SQLITE_PREPARE_PERSISTENT : 0U;
    // A string_view need not end in a NUL; the length says where it ends.
    check(handle,
          sqlite3_prepare_v3(handle, text.data(), static_cast<int>(text.size()), flags, &mStatement, &tail));
    const std::string_view rest = text.substr(static_cast<std::size_t>(tail - text.data()));
    sql::Lexer lexer(rest);
    sql::Token token = lexer.next();
    while (token.isSymbol(';'))
        token = lexer.next();
    if (token.kind == sql::TokenKind::End) return;
    sqlite3_finalize(mStatement);
    throw severalStatements();
}

CompiledStatement::~CompiledStatement() {
    sqlite3_finalize(mStatement);
}

CompiledStatement::CompiledStatement(CompiledStatement&& other) noexcept
    : mStatement(std::exchange(other.mStatement, nullptr)) {}

CompiledStatement& CompiledStatement::operator=(CompiledStatement&& other) noexcept {
    std::swap(mStatement, other.mStatement);
    return *this;
}

bool CompiledStatement::step() {
    if (!mStatement) return false;
    const int code = sqlite3_step(mStatement);
    if (code == SQLITE_ROW) return true;
    if (code != SQLITE_DONE) {
        const RuntimeError error = engineError(sqlite3_db_handle(mStatement), code);
        sqlite3_reset(mStatement);
        throw error;
    }
    sqlite3_reset(mStatement);
    return false;
}

void CompiledStatement::reset() {
    sqlite3_reset(mStatement);
}

std::string_view CompiledStatement::text(int column) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(mStatement, column));
    if (!text) return {};
    return {text, static_cast<std::size_t>(sqlite3_column_bytes(mStatement, column))};
}

} // namespace Korvane::ado::sqlite
