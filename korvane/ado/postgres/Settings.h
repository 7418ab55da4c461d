#pragma once

#include <korvane/ado/postgres/Wire.h>

#include <chrono>
#include <string>
#include <utility>
#include <vector>

namespace Korvane::ado::postgres {

/// What the library has a session of the server set to: texts come as UTF-8, dates in the ISO form, numbers
/// with all their digits. The server takes such a setting back when the transaction it was made in is rolled
/// back, and anybody who uses the line can change it; so it is looked at before every statement.
class Settings {
  public:
    explicit Settings(Wire& wire) : mWire(wire) {}

    /// Makes them, in one round trip with a further question, whose answer it returns. What they were on a
    /// lent handle is remembered.
    Answer make(Command further);
    /// Makes sure that they hold for what is sent behind these commands; adds nothing when they do.
    void renew(std::vector<Command>& commands, bool inTransaction);
    /// How long the server gives a statement.
    void limit(std::chrono::milliseconds statement);
    /// Sets a lent handle back to what it was. Not inside a transaction that has failed; inside another one
    /// they come back when it is committed.
    void restore();

  private:
    using Values = std::vector<std::pair<std::string, std::string>>;
    bool hold() const;
    Values unremembered() const;
    std::vector<Answer> send(std::vector<Command> commands) const;
    void remember(const Values& names, const Answer& values);

    Wire& mWire;
    Values mWanted;
    Values mFormer;            ///< of a lent handle
    bool mMayBeUndone = false; ///< they were made inside a transaction
};

} // namespace Korvane::ado::postgres
