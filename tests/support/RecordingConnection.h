#pragma once

#include <korvane/ado/Connection.h>
#include <korvane/nip/Revision.h>
#include <korvane/runtime/RuntimeError.h>

#include <algorithm>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Korvane::Testing {

/// A connection that writes down every statement and hands it on to a real one; it can be told to fail
/// or to lose its line.
///
///     auto db = std::make_shared<RecordingConnection>(ado::open("sqlite::memory:"));
///     ...
///     EXPECT_EQ(db->statements.back(), "Delete From Encounter Where EncounterID=12");
class RecordingConnection : public ado::Connection {
  public:
    explicit RecordingConnection(std::shared_ptr<ado::Connection> real) : mReal(std::move(real)) {}

    /// Every statement in the order in which it was run, also one that failed; without those that only ask
    /// whether somebody has customized.
    std::vector<std::string> statements;
    /// Every statement that was announced, without those either.
    std::vector<std::string> announced;
    /// A statement that contains this text fails with `failure` instead of being run. Empty: none does.
    std::string failOn;
    RuntimeError failure{RuntimeError::DatabaseFailure, "disk I/O error", 10};

    /// The line is lost with a statement that contains this text, or with the outermost "Commit": no answer
    /// comes, whether it was `carriedOut` or not, and `State` is 0 until `Reset`.
    std::string loseAnswerOf;
    bool carriedOut = true;
    /// How many more statements, commits among them, run before one fails; below 0: none does.
    int failAfter = -1;
    /// Called instead of that failure.
    std::function<void()> insteadOfFailing;

    /// Runs `statement` past the record, to prepare or look at what is stored.
    std::int32_t quietly(std::string_view statement) { return mReal->Execute(statement); }
    const std::shared_ptr<ado::Connection>& real() const { return mReal; }

    std::int32_t State() const override { return mLost ? 0 : mReal->State(); }
    std::int32_t Execute(std::string_view statement) override {
        note(statement);
        const bool loses = losesAnswerOf(statement);
        const std::int32_t touched = loses && !carriedOut ? 0 : mReal->Execute(statement);
        if (loses) loseLine();
        return touched;
    }
    std::int32_t BeginTrans(ado::TransactionFor use) override { return mReal->BeginTrans(use); }
    void CommitTrans() override {
        step();
        if (transactionLevel() > 1 || !losesAnswerOf("Commit")) return mReal->CommitTrans();
        carriedOut ? mReal->CommitTrans() : mReal->RollbackTrans();
        loseLine();
    }
    void RollbackTrans() override { mReal->RollbackTrans(); }
    std::int32_t transactionLevel() const override { return mReal->transactionLevel(); }
    void Announce(std::span<const std::string> coming) override {
        std::ranges::copy_if(coming, std::back_inserter(announced),
                             [&](const std::string& statement) { return !asksForChanges(statement); });
        mReal->Announce(coming);
    }
    std::string schemaMarkStatement() const override { return mReal->schemaMarkStatement(); }
    void Reset() override {
        mReal->Reset();
        mLost = false;
    }
    void Close() override { mReal->Close(); }
    std::unique_ptr<ado::Cursor> openCursor(std::string_view statement, ado::CursorType cursorType,
                                            ado::LockType lockType) override {
        note(statement);
        return mReal->openCursor(statement, cursorType, lockType);
    }
    std::unique_ptr<ado::Cursor> openNative(std::string_view statement) override {
        note(statement);
        return mReal->openNative(statement);
    }
    const ado::CatalogDialect& catalogDialect() const override { return mReal->catalogDialect(); }

  private:
    bool asksForChanges(std::string_view statement) const {
        return statement == schemaMarkStatement() || statement == revisionStatement;
    }
    void step() {
        if (failAfter < 0 || failAfter-- > 0) return;
        if (!insteadOfFailing) throw failure;
        insteadOfFailing();
    }
    void note(std::string_view statement) {
        step();
        if (asksForChanges(statement)) return;
        statements.emplace_back(statement);
        if (!failOn.empty() && statement.find(failOn) != std::string_view::npos) throw failure;
    }

    bool losesAnswerOf(std::string_view statement) const {
        return !loseAnswerOf.empty() && statement.find(loseAnswerOf) != std::string_view::npos;
    }

    void loseLine() {
        mLost = true;
        loseAnswerOf.clear();
        throw RuntimeError(RuntimeError::DatabaseFailure, "the connection was lost");
    }

    std::shared_ptr<ado::Connection> mReal;
    bool mLost = false;
};

} // namespace Korvane::Testing
