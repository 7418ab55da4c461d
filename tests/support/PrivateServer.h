#pragma once

#include "support/Environment.h"
#include "support/ScratchDir.h"

#include <string>
#include <string_view>

namespace Korvane::Testing {

/// A PostgreSQL server of the test's own, with the database "postgres" and the superuser "clinic", who needs
/// no password. The test may stop it as it likes; it is gone, with all that it kept, at the end,
/// also when the test is killed.
///
///     if (!PrivateServer::isInstalled()) GTEST_SKIP() << PrivateServer::notInstalled;
///     PrivateServer server;
///     auto db = ado::open(server.address());
///     server.stop("immediate");
class PrivateServer {
  public:
    static constexpr const char* notInstalled = "PostgreSQL's server is not installed";
    static bool isInstalled();

    /// Starts it. `settings` as its configuration file would have them, a line each.
    explicit PrivateServer(std::string_view settings = {});
    ~PrivateServer();
    PrivateServer(const PrivateServer&) = delete;
    PrivateServer& operator=(const PrivateServer&) = delete;

    /// With `settings` beside those that it has. Without `wait`, returns before it takes connections.
    void start(std::string_view settings = {}, bool wait = true);
    /// "smart" waits for everybody to leave, "fast" throws them out, "immediate" is as if the power went.
    void stop(const char* mode);
    void restart(const char* mode) {
        stop(mode);
        start();
    }

    /// By its socket file, the URI that a client needs; with more options behind it where they are given.
    std::string address(const std::string& options = {}) const;
    std::string socketFile() const { return mDir.file(".s.PGSQL.5432"); }
    /// A file in its data directory.
    std::string dataFile(const std::string& name) const { return mDir.file("data/" + name); }
    void write(const std::string& dataFile, std::string_view content) const;

  private:
    /// As the user who may run a server. Raises when it fails, with what it said.
    void run(const std::string& program, const std::string& arguments) const;
    void watch();

    ScratchDir mDir;
    int mAlive = -1; ///< the pipe that closes when the test dies
    bool mRuns = false;
};

/// Makes all scratch databases on that server while it lives.
///
///     const ServerInForce here(server.address());
///     ScratchClinic clinic;
struct ServerInForce {
    explicit ServerInForce(const std::string& address) : mAddress("KORVANE_TEST_POSTGRES", address) {}

  private:
    Environment mAddress;
    Environment mEngine{"KORVANE_TEST_ENGINE", "postgresql"};
};

} // namespace Korvane::Testing
