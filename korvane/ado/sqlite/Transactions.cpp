#include <korvane/ado/sqlite/Transactions.h>

#include <korvane/ado/TransactionErrors.h>
#include <korvane/ado/sqlite/Error.h>

#include <sqlite3.h>

#include <string>

namespace Korvane::ado::sqlite {

void Transactions::run(const char* statement) const {
    check(mHandle, sqlite3_exec(mHandle, statement, nullptr, nullptr, nullptr));
}

void Transactions::run(const char* verb, std::int32_t savepoint) const {
    run((std::string(verb) + " korvane_" + std::to_string(savepoint)).c_str());
}

std::int32_t Transactions::begin(TransactionFor use) {
    requireNotLost();
    const bool joins = sqlite3_get_autocommit(mHandle) == 0;
    if (joins) {
        run("Savepoint", level() + 1);
    } else {
        run(use == TransactionFor::Reading ? "Begin Deferred" : "Begin Immediate");
    }
    mSavepoints.push_back(joins);
    return level();
}

void Transactions::commit() {
    if (mSavepoints.empty()) throw nothingToCommit();
    requireNotLost();
    if (mSavepoints.back()) {
        run("Release", level());
    } else {
        run("Commit");
    }
    mSavepoints.pop_back();
}

void Transactions::rollback() {
    if (mSavepoints.empty()) throw nothingToRollBack();
    if (!lost()) {
        if (mSavepoints.back()) {
            run("Rollback To", level());
            run("Release", level());
        } else {
            run("Rollback");
        }
    }
    mSavepoints.pop_back();
}

bool Transactions::lost() const {
    return !mSavepoints.empty() && sqlite3_get_autocommit(mHandle) != 0;
}

void Transactions::requireNotLost() const {
    if (lost()) throw transactionOver();
}

} // namespace Korvane::ado::sqlite
