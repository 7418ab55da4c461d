#pragma once

#include <korvane/ado/postgres/Shapes.h>
#include <korvane/ado/postgres/Wire.h>

#include <cstddef>
#include <memory>
#include <vector>

namespace Korvane::ado::postgres {

/// A statement ready to be sent.
struct Request {
    std::shared_ptr<Shape> shape;
    Form* form = nullptr; ///< null for a text that is sent as it is
    Command command;
};

/// Requests on their way to the server together, answered one after the other. While they are, the line can
/// be used for nothing else. When one of them fails, none has had any effect, and a transaction goes on.
class Batch {
  public:
    /// Sends the requests, and what has to go before them; `guarded`: inside a transaction, which is to
    /// outlive a failure, also of `within`, which goes before them too.
    Batch(Wire& wire, bool guarded, std::vector<Command> before, std::vector<Command> within,
          std::vector<Request> requests);

    const std::vector<Request>& requests() const { return mRequests; }
    /// How many of them have been answered.
    std::size_t answered() const { return mAnswered; }
    bool isOver() const { return mIsOver; }

    /// Waits for the answer to the next request. Raises the failure of whatever failed; the batch is over
    /// then, as it is behind the last one.
    Answer next();

  private:
    struct Step {
        Form* prepares = nullptr;
        bool isRequest = false;
    };

    std::vector<Command> commands(std::vector<Command> before, std::vector<Command> within);
    Answer receive();
    void finish();
    void end();
    [[noreturn]] void fail(const Answer& failure);

    Wire& mWire;
    bool mGuarded;
    std::vector<Request> mRequests;
    std::vector<Step> mSteps;  ///< one for each command
    std::size_t mGuard = 0;    ///< the step that sets the savepoint to go back to
    std::size_t mReceived = 0; ///< steps
    std::size_t mAnswered = 0; ///< requests
    bool mIsOver = false;
};

} // namespace Korvane::ado::postgres
