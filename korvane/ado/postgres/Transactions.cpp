#include <korvane/ado/postgres/Transactions.h>

#include <korvane/ado/TransactionErrors.h>
#include <korvane/ado/postgres/Error.h>

#include <libpq-fe.h>

#include <algorithm>
#include <string_view>
#include <utility>

namespace Korvane::ado::postgres {

namespace {

/// Held until the transaction ends. The second number is this library's own.
constexpr const char* lockOfSchema =
    "Select pg_catalog.pg_advisory_xact_lock(pg_catalog.hashtext(current_schema()), 1265595457)";

std::string savepoint(std::int32_t level) {
    return "korvane_" + std::to_string(level);
}

} // namespace

std::int32_t Transactions::begin(TransactionFor use) {
    requireNotLost();
    const bool joins = isOpen();
    if (mLevels.empty()) mReads = !joins && use == TransactionFor::Reading;
    mLevels.push_back(joins);
    if (!joins)
        mUnsent.emplace_back(use == TransactionFor::Reading ? "Begin Isolation Level Repeatable Read"
                                                            : "Begin");
    if (use == TransactionFor::ChangingSchema) mUnsent.emplace_back(lockOfSchema);
    if (joins) mUnsent.push_back("Savepoint " + savepoint(level()));
    return level();
}

void Transactions::commit() {
    if (mLevels.empty()) throw nothingToCommit();
    requireNotLost();
    if (mLevels.back()) {
        const std::string begun = "Savepoint " + savepoint(level());
        if (!mUnsent.empty() && mUnsent.back() == begun)
            mUnsent.pop_back();
        else if (level() > 1)
            mUnsent.push_back("Release " + begun);
        else
            run("Release " + begun); // what follows is the owner's
    } else if (!hasBegun()) {
        mUnsent.clear();
    } else {
        requireCommitted(run("Commit").get());
    }
    mLevels.pop_back();
}

void Transactions::rollback() {
    if (mLevels.empty()) throw nothingToRollBack();
    const bool isSavepoint = mLevels.back();
    const std::string mark = savepoint(level());
    mLevels.pop_back();
    const bool serverHasIt = mWire.isUp() && mWire.transaction() != Wire::Transaction::None && hasBegun();
    const auto begun = std::find(mUnsent.begin(), mUnsent.end(), "Savepoint " + mark);
    const bool unsentOnly = isSavepoint && begun != mUnsent.end();
    mUnsent.erase(unsentOnly ? begun : mUnsent.begin(), mUnsent.end());
    if (unsentOnly || !serverHasIt) return;
    if (!isSavepoint) return runAll({"Rollback"});
    runAll({"Rollback To Savepoint " + mark, "Release Savepoint " + mark});
}

bool Transactions::lost() const {
    return level() > 0 && hasBegun() && mWire.transaction() == Wire::Transaction::None;
}

void Transactions::requireNotLost() const {
    if (lost()) throw transactionOver();
}

void Transactions::requireCommitted(const pg_result* answer) {
    if (std::string_view(PQcmdStatus(const_cast<pg_result*>(answer))) == "ROLLBACK") throw transactionOver();
}

Answer Transactions::run(const std::string& statement) {
    std::vector<std::string> statements = std::exchange(mUnsent, {});
    statements.push_back(statement);
    std::vector<Command> commands;
    commands.reserve(statements.size());
    for (const std::string& text : statements)
        commands.push_back({.text = text});
    std::vector<Answer> answers = mWire.send(commands);
    for (const Answer& answer : answers) {
        if (PQresultStatus(answer.get()) == PGRES_FATAL_ERROR) throw engineError(answer.get());
    }
    return std::move(answers.back());
}

void Transactions::runAll(std::vector<std::string> statements) {
    const std::string last = std::move(statements.back());
    statements.pop_back();
    mUnsent.insert(mUnsent.end(), statements.begin(), statements.end());
    run(last);
}

} // namespace Korvane::ado::postgres
