#pragma once

#include <korvane/ado/postgres/PostgresConnection.h>
#include <korvane/ado/postgres/Types.h>

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

struct pg_result;

namespace Korvane::ado::postgres {

/// Gives an answer back to the client library.
struct ClearResult {
    void operator()(pg_result* result) const;
};
/// What the server answered to one command.
using Answer = std::unique_ptr<pg_result, ClearResult>;

/// One thing that the server is asked to do.
struct Command {
    /// What is asked for.
    enum Kind {
        Run,     ///< the text, with values for its parameters
        Prepare, ///< the text under a name, with the types of its parameters
        Prepared ///< what was prepared under the name, with values
    };
    Kind kind = Run;
    std::string name{};
    std::string text{};
    std::vector<TypeId> types{};
    std::vector<std::optional<std::string>> values{};
    bool atOnce = false; ///< the server is not to keep the answer until it has more to send
};

/// The line to a server: sends commands together and waits for what comes back, never without end. Once the
/// line is lost, or has answered nothing for too long, it is down until `reset`.
class Wire {
  public:
    /// Connects.
    Wire(const std::string& address, const Limits& limits);
    /// Works on a handle that somebody else owns.
    Wire(pg_conn* lent, StillLent stillLent);
    ~Wire();
    Wire(const Wire&) = delete;
    Wire& operator=(const Wire&) = delete;

    /// Sends the commands in one go and gives an answer for each. From the first one that failed on, they
    /// have not been carried out; their answers say so. Raises when the line is lost.
    std::vector<Answer> send(std::span<const Command> commands);

    /// The same step by step: sends them, waits for the answer to each in turn, and for the end, where the
    /// server may still say that all of it failed (null when it does not).
    void begin(std::span<const Command> commands);
    Answer next();
    Answer end();
    /// Takes in what has come of the answers, without waiting for more: a server whose answers nobody takes
    /// stops at some time and waits. A failure is found out by whoever asks for the answer.
    void takeIn();

    bool isUp() const;
    bool isLent() const { return !mOwned; }
    /// Whether the owner of a lent handle has closed it. It must not be touched then.
    bool isTakenBack() const { return mStillLent && !mStillLent(); }
    /// Ends the line, for good.
    void hangUp();
    /// Connects again as before. Raises when that fails.
    void reset();
    void limits(const Limits& limits) { mLimits = limits; }
    const Limits& limits() const { return mLimits; }

    /// Whether a transaction is open on the line, and whether it can go on.
    enum class Transaction { None, Open, Failed };
    /// What the server said last of the transaction that is open on the line.
    Transaction transaction() const;
    /// Whether a setting that the server keeps us informed of has that value.
    bool has(const char* setting, std::string_view value) const;

  private:
    template <typename Poll>
    void connect(Poll poll);
    void queue(const Command& command);
    Answer receive();
    void leavePipeline();
    bool await(short events, std::chrono::milliseconds patience) const;
    [[noreturn]] void lose(const char* what);

    pg_conn* mHandle = nullptr;
    bool mOwned;
    StillLent mStillLent;
    bool mLost = false;
    bool mUnderWay = false; ///< between `begin` and `end`: in pipeline mode, and never blocking
    int mWasNonBlocking = 0;
    Limits mLimits;
};

} // namespace Korvane::ado::postgres
