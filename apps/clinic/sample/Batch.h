#pragma once

#include <korvane/ado/Connection.h>

#include <string>
#include <vector>

namespace Clinic {

/// Statements that are run many at a time, so that a server is asked seldom. To be used inside a transaction.
///
///     Batch batch(connection);
///     for (const Patient& p : patients) batch.add(insertOf(p));
///     batch.run();                                    // what is left
class Batch {
  public:
    explicit Batch(Korvane::ado::Connection& connection) : mConnection(connection) {}

    /// Takes a statement; runs those that have gathered when they are many. Raises a RuntimeError.
    void add(std::string statement);

    /// Runs those that have gathered, in their order. Raises a RuntimeError. What is never run is dropped.
    void run();

  private:
    Korvane::ado::Connection& mConnection;
    std::vector<std::string> mStatements;
};

} // namespace Clinic
