#include "support/PrivateServer.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <thread>

using namespace Korvane::Testing;

namespace {

/// Starts a server, and waits to be killed.
[[noreturn]] void serveAndWait(int said) noexcept {
    const PrivateServer server;
    const std::string pidFile = server.dataFile("postmaster.pid");
    if (::write(said, pidFile.data(), pidFile.size()) < 0) ::_exit(1);
    ::close(said);
    for (;;)
        ::pause();
}

} // namespace

TEST(PrivateServer, DoesNotOutliveATestThatIsKilled) {
    if (!PrivateServer::isInstalled()) GTEST_SKIP() << PrivateServer::notInstalled;
    int said[2];
    ASSERT_EQ(::pipe(said), 0);
    const pid_t test = ::fork();
    if (test == 0) serveAndWait(said[1]);
    ::close(said[1]);
    char text[512];
    const ssize_t length = ::read(said[0], text, sizeof text);
    ::close(said[0]);
    ASSERT_GT(length, 0);
    pid_t server = 0;
    std::ifstream(std::string(text, static_cast<std::size_t>(length))) >> server;
    ASSERT_GT(server, 0);
    ASSERT_EQ(::kill(server, 0), 0);

    ::kill(test, SIGKILL);
    ::waitpid(test, nullptr, 0);
    for (int i = 0; i < 100 && ::kill(server, 0) == 0; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_NE(::kill(server, 0), 0);
}
