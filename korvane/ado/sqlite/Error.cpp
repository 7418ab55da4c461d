#include <korvane/ado/sqlite/Error.h>

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
        return {RuntimeError::DuplicateKey, "a row with the same key is already there"};
    case SQLITE_CONSTRAINT_FOREIGNKEY:
        return {RuntimeError::DatabaseFailure,
                "other rows refer to the row, or the row it refers to is missing"};
    default:
        return {RuntimeError::DatabaseFailure, nullptr};
    }
}

Report report(int code) {
    constexpr int primary = 0xFF;
    switch (code & primary) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {RuntimeError::DatabaseFailure,
                "the database is in use by another program; try again in a moment"};
    case SQLITE_FULL:
        return {RuntimeError::DiskFull,
                "there is no room left on the disk for the database; free some and try again"};
    case SQLITE_READONLY:
        return {RuntimeError::PermissionDenied,
                "the database cannot be written; it may be opened read-only or "
                "the file may belong to somebody else"};
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return {RuntimeError::PermissionDenied, "access to the database is not permitted"};
    case SQLITE_CANTOPEN:
        return {RuntimeError::FileNotFound,
                "check that the file's folder exists and may be read and written"};
    case SQLITE_CORRUPT:
        return {RuntimeError::DatabaseFailure, "the database file is damaged; restore it from a backup"};
    case SQLITE_NOTADB:
        return {RuntimeError::DatabaseFailure, "the file is not a database of this kind, or it is encrypted"};
    case SQLITE_IOERR:
        return {RuntimeError::DeviceIo,
                "the disk could not be read or written; check that it is connected and healthy"};
    case SQLITE_INTERRUPT:
        return {RuntimeError::DatabaseFailure, "the statement was stopped before it was done"};
    case SQLITE_NOMEM:
        return {RuntimeError::OutOfMemory, nullptr};
    case SQLITE_MISMATCH:
        return {RuntimeError::TypeMismatch, "a value is not of the type of its column"};
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
    if (found.advice) message += std::string(" (") + found.advice + ")";
    return {found.number, message, code};
}

void check(sqlite3* handle, int code) {
    if (code == SQLITE_OK || code == SQLITE_ROW || code == SQLITE_DONE) return;
    throw engineError(handle, code);
}

} // namespace Korvane::ado::sqlite
