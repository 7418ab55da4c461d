#include <korvane/ado/postgres/Error.h>

#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

#include <libpq-fe.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace Korvane::ado::postgres {

namespace {

// A report for one code, or for all that begin so. The longer ones stand before the shorter.
struct Report {
    std::string_view state;
    int number;
    const char* advice;
};

constexpr std::array reports{
    Report{"23505", RuntimeError::DuplicateKey,
           translatable("Korvane::ado", "a row with the same key is already there")},
    Report{"23503", RuntimeError::DatabaseFailure,
           translatable("Korvane::ado", "other rows refer to the row, or the row it refers to is missing")},
    Report{"22001", RuntimeError::DatabaseFailure,
           translatable("Korvane::ado", "a text is longer than its column")},
    Report{"22003", RuntimeError::Overflow, nullptr},
    Report{"22008", RuntimeError::Overflow, nullptr},
    Report{"22007", RuntimeError::TypeMismatch, nullptr},
    Report{"22P02", RuntimeError::TypeMismatch,
           translatable("Korvane::ado", "a value is not of the type of its column")},
    Report{"42804", RuntimeError::TypeMismatch, nullptr},
    Report{"22012", RuntimeError::DivisionByZero, nullptr},
    Report{"22021", RuntimeError::InvalidArgument,
           translatable("Korvane::ado", "a text holds bytes that are no UTF-8")},
    Report{
        "22P05", RuntimeError::InvalidArgument,
        translatable("Korvane::ado", "a text holds a character that the database's encoding does not have")},
    Report{"25006", RuntimeError::PermissionDenied,
           translatable("Korvane::ado", "the database, or this transaction, is read-only")},
    Report{"25P02", RuntimeError::DatabaseFailure,
           translatable("Korvane::ado", "an earlier statement of the transaction has failed")},
    Report{"28000", RuntimeError::PermissionDenied,
           translatable(
               "Korvane::ado",
               "check the user's name; the server may also let that user in from certain machines only")},
    Report{"28", RuntimeError::PermissionDenied,
           translatable("Korvane::ado", "check the user's name and password")},
    Report{"3D000", RuntimeError::FileNotFound,
           translatable("Korvane::ado", "check the database's name in the address")},
    Report{"40", RuntimeError::DatabaseFailure,
           translatable("Korvane::ado", "another program was changing the same rows; try again")},
    Report{"42501", RuntimeError::PermissionDenied,
           translatable("Korvane::ado",
                        "this login lacks a right that is needed; ask whoever looks after the database")},
    Report{"53100", RuntimeError::DiskFull,
           translatable("Korvane::ado", "there is no room left on the server's disk")},
    Report{"53200", RuntimeError::OutOfMemory, translatable("Korvane::ado", "the server has no memory left")},
    Report{"53300", RuntimeError::DatabaseFailure,
           translatable("Korvane::ado", "too many programs are connected; try again later")},
    Report{"54", RuntimeError::DatabaseFailure,
           translatable("Korvane::ado", "the statement is beyond a limit of the server")},
    Report{"55P03", RuntimeError::DatabaseFailure,
           translatable("Korvane::ado", "another program holds the rows; try again in a moment")},
    Report{"57014", RuntimeError::DatabaseFailure,
           translatable("Korvane::ado",
                        "the statement took longer than it is given, or was stopped; try again in a moment")},
    Report{"57P", RuntimeError::DatabaseFailure,
           translatable("Korvane::ado",
                        "the server is going down or coming up; open the connection again in a moment")},
    Report{"58030", RuntimeError::DeviceIo,
           translatable("Korvane::ado", "the server could not read or write its disk")},
};

const Report* reportFor(std::string_view state) {
    for (const Report& report : reports) {
        if (state.starts_with(report.state)) return &report;
    }
    return nullptr;
}

RuntimeError reported(std::string message, std::string_view state) {
    const Report* report = reportFor(state);
    if (report && report->advice) message += " (" + Korvane::translate("Korvane::ado", report->advice) + ")";
    if (!state.empty()) message += " [" + std::string(state) + "]";
    return {report ? report->number : RuntimeError::DatabaseFailure, message, nativeCode(state)};
}

std::string_view withoutLineEnd(std::string_view text) {
    while (!text.empty() && (text.back() == '\n' || text.back() == ' '))
        text.remove_suffix(1);
    return text;
}

} // namespace

int nativeCode(std::string_view sqlState) {
    int code = 0;
    std::from_chars(sqlState.data(), sqlState.data() + sqlState.size(), code, 36);
    return code;
}

std::string sqlState(int nativeCode) {
    std::array<char, 16> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), nativeCode, 36);
    std::string state = upperCase({digits.data(), static_cast<std::size_t>(end - digits.data())});
    if (state.size() < 5) state.insert(0, 5 - state.size(), '0');
    return state;
}

bool mayDoBetterAsText(const RuntimeError& error) {
    constexpr std::array<std::string_view, 11> states{"0A000", "26000", "42P01", "42703", "42704", "42804",
                                                      "42883", "42725", "42P18", "22P02", "22007"};
    if (error.NativeCode() == 0)
        return error.Number() == RuntimeError::TypeMismatch || error.Number() == RuntimeError::Overflow;
    return std::find(states.begin(), states.end(), sqlState(error.NativeCode())) != states.end();
}

RuntimeError engineError(const pg_result* result) {
    const char* field = PQresultErrorField(result, PG_DIAG_MESSAGE_PRIMARY);
    std::string message(withoutLineEnd(field ? field : PQresultErrorMessage(result)));
    const char* code = PQresultErrorField(result, PG_DIAG_SQLSTATE);
    return reported(std::move(message), code ? code : "");
}

RuntimeError connectionError(const pg_conn* handle, const char* what) {
    std::string message = Korvane::translate("Korvane::ado", what);
    const std::string_view said = withoutLineEnd(handle ? PQerrorMessage(handle) : "");
    if (!said.empty()) message += ": ";
    for (const char c : said)
        message += c == '\n' || c == '\t' ? ' ' : c;
    constexpr std::string_view connectionFailure = "08006";
    return {RuntimeError::DatabaseFailure, message, nativeCode(connectionFailure)};
}

// Of a refusal the client library keeps the text only. At its most talkative it begins with the code,
// whatever the server's language: "FATAL:  28P01: password authentication failed".
RuntimeError refusalError(const pg_conn* handle) {
    constexpr std::size_t codeSize = 5;
    constexpr std::string_view before = ":  ";
    constexpr std::string_view behind = ": ";
    const auto isCode = [](std::string_view text) {
        return text.size() == codeSize &&
               text.find_first_not_of("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ") == std::string_view::npos;
    };
    const std::string_view said = PQerrorMessage(handle);
    for (std::size_t at = said.rfind(before); at != std::string_view::npos && at != 0;
         at = said.rfind(before, at - 1)) {
        const std::string_view code = said.substr(at + before.size()).substr(0, codeSize);
        const std::string_view message = said.substr(std::min(said.size(), at + before.size() + codeSize));
        if (!isCode(code) || !message.starts_with(behind)) continue;
        const std::string text(message.substr(behind.size(), message.find('\n') - behind.size()));
        return reported(
            filled(Korvane::translate("Korvane::ado", "The database server refused the connection: %1"),
                   {text}),
            code);
    }
    if (PQconnectionNeedsPassword(handle) != 0) {
        return reported(Korvane::translate("Korvane::ado",
                                           "The database server asks for a password, and there is none "
                                           "in the address, in PGPASSWORD or in the password file."),
                        "28P01");
    }
    return connectionError(handle, translatable("Korvane::ado", "The database server could not be reached"));
}

} // namespace Korvane::ado::postgres
