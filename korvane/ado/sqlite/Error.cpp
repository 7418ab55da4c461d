#include <korvane/ado/sqlite/Error.h>

#include <korvane/runtime/Translation.h>

#include <sqlite3.h>

#include <string>

namespace Korvane::ado::sqlite {

namespace {

struct Report {
    int number;
    const char* advice;
};

Report constraint(int code) {
    switch (code) {
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_ROWID:
        return {RuntimeError::DuplicateKey,
                translatable("Korvane::ado", "a row with the same key is already there")};
    case SQLITE_CONSTRAINT_FOREIGNKEY:
        return {
            RuntimeError::DatabaseFailure,
            translatable("Korvane::ado", "other rows refer to the row, or the row it refers to is missing")};
    default:
        return {RuntimeError::DatabaseFailure, nullptr};
    }
}

Report report(int code) {
    constexpr int primary = 0xFF;
    switch (code & primary) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {
            RuntimeError::DatabaseFailure,
            translatable("Korvane::ado", "the database is in use by another program; try again in a moment")};
    case SQLITE_FULL:
        return {RuntimeError::DiskFull,
                translatable("Korvane::ado",
                             "there is no room left on the disk for the database; free some and try again")};
    case SQLITE_READONLY:
        return {RuntimeError::PermissionDenied,
                translatable("Korvane::ado", "the database cannot be written; it may be opened read-only or "
                                             "the file may belong to somebody else")};
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return {RuntimeError::PermissionDenied,
                translatable("Korvane::ado", "access to the database is not permitted")};
    case SQLITE_CANTOPEN:
        return {
            RuntimeError::FileNotFound,
            translatable("Korvane::ado", "check that the file's folder exists and may be read and written")};
    case SQLITE_CORRUPT:
        return {RuntimeError::DatabaseFailure,
                translatable("Korvane::ado", "the database file is damaged; restore it from a backup")};
    case SQLITE_NOTADB:
        return {RuntimeError::DatabaseFailure,
                translatable("Korvane::ado", "the file is not a database of this kind, or it is encrypted")};
    case SQLITE_IOERR:
        return {
            RuntimeError::DeviceIo,
            translatable("Korvane::ado",
                         "the disk could not be read or written; check that it is connected and healthy")};
    case SQLITE_INTERRUPT:
        return {RuntimeError::DatabaseFailure,
                translatable("Korvane::ado", "the statement was stopped before it was done")};
    case SQLITE_NOMEM:
        return {RuntimeError::OutOfMemory, nullptr};
    case SQLITE_MISMATCH:
        return {RuntimeError::TypeMismatch,
                translatable("Korvane::ado", "a value is not of the type of its column")};
    case SQLITE_CONSTRAINT:
        return constraint(code);
    default:
        return {RuntimeError::DatabaseFailure, nullptr};
    }
}

} // namespace

RuntimeError engineError(sqlite3* handle, int code) {
    // A lent handle may report short codes; the long one is kept beside them.
    constexpr int primary = 0xFF;
    const int extended = handle ? sqlite3_extended_errcode(handle) : code;
    if ((extended & primary) == (code & primary)) code = extended;
    std::string message = handle ? sqlite3_errmsg(handle) : sqlite3_errstr(code);
    const Report found = report(code);
    if (found.advice) message += " (" + Korvane::translate("Korvane::ado", found.advice) + ")";
    return {found.number, message, code};
}

void check(sqlite3* handle, int code) {
    if (code == SQLITE_OK || code == SQLITE_ROW || code == SQLITE_DONE) return;
    throw engineError(handle, code);
}

} // namespace Korvane::ado::sqlite
