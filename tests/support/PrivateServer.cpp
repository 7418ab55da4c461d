#include "support/PrivateServer.h"

#include <fcntl.h>
#include <pwd.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace Korvane::Testing {

namespace {

/// Where the programs of the newest one are; empty when there is none.
std::string programs() {
    std::string found;
    std::error_code none;
    for (const auto& version : std::filesystem::directory_iterator("/usr/lib/postgresql", none)) {
        const auto bin = version.path() / "bin";
        if (std::filesystem::exists(bin / "initdb")) found = std::max(found, bin.string());
    }
    return found;
}

/// A server does not run as root.
const passwd* otherUser() {
    return ::geteuid() == 0 ? ::getpwnam("postgres") : nullptr;
}

/// The command that runs one of the programs as the user who may run a server.
std::string asServer(const std::string& program) {
    const char* as = otherUser() ? "setpriv --reuid=postgres --regid=postgres --clear-groups " : "";
    return as + programs() + "/" + program;
}

} // namespace

bool PrivateServer::isInstalled() {
    return !programs().empty() && (::geteuid() != 0 || otherUser());
}

PrivateServer::PrivateServer(std::string_view settings) {
    if (const passwd* user = otherUser()) {
        if (::chown(mDir.path().c_str(), user->pw_uid, user->pw_gid) != 0)
            throw std::runtime_error("the directory of the server cannot be given away");
    }
    watch();
    run("initdb", "-D data -U clinic -A trust -N -E UTF8 --locale=C");
    write("postgresql.auto.conf", "fsync=off\nlisten_addresses=''\nport=5432\nunix_socket_directories='" +
                                      mDir.path().string() + "'\n" + std::string(settings) + "\n");
    start();
}

PrivateServer::~PrivateServer() {
    try {
        stop("immediate");
    } catch (const std::runtime_error&) {
        // It went by itself.
    }
    if (::write(mAlive, "\n", 1) == 1) ::close(mAlive);
}

/// A process of its own session, so that what kills the test does not kill it too. It sleeps on a pipe that
/// the test holds open: a line says that the test has ended in order, an end without one that it was killed.
void PrivateServer::watch() {
    const std::string pipe = mDir.file("alive");
    if (::mkfifo(pipe.c_str(), 0600) != 0 || (mAlive = ::open(pipe.c_str(), O_RDWR | O_CLOEXEC)) < 0)
        throw std::runtime_error("the server cannot be watched");
    const std::string watcher = "read line <alive || { " + asServer("pg_ctl") +
                                " -D data stop -m immediate; rm -rf " + mDir.path().string() + "; }";
    const std::string command =
        "cd " + mDir.path().string() + " && setsid sh -c '" + watcher + "' >/dev/null 2>&1 </dev/null &";
    if (std::system(command.c_str()) != 0) throw std::runtime_error("the server cannot be watched");
}

void PrivateServer::start(std::string_view settings, bool wait) {
    std::string options;
    if (!settings.empty()) options = " -o \"-c " + std::string(settings) + "\"";
    run("pg_ctl", std::string(wait ? "-w" : "-W") + " -D data -l log start" + options);
    mRuns = true;
}

void PrivateServer::stop(const char* mode) {
    if (!mRuns) return;
    mRuns = false;
    run("pg_ctl", std::string("-w -D data stop -m ") + mode);
}

std::string PrivateServer::address(const std::string& options) const {
    return "postgresql://clinic@/postgres?port=5432&host=" + mDir.path().string() +
           (options.empty() ? "" : "&" + options);
}

void PrivateServer::write(const std::string& file, std::string_view content) const {
    std::ofstream(dataFile(file), std::ios::app | std::ios::binary) << content;
    if (const passwd* user = otherUser())
        if (::chown(dataFile(file).c_str(), user->pw_uid, user->pw_gid) != 0)
            throw std::runtime_error("a file of the server cannot be given away");
}

void PrivateServer::run(const std::string& program, const std::string& arguments) const {
    const std::string command = "cd " + mDir.path().string() + " && " + asServer(program) + " " + arguments +
                                " >said 2>&1 </dev/null";
    if (std::system(command.c_str()) != 0)
        throw std::runtime_error(program + ": " + mDir.read("said") + mDir.read("log"));
}

} // namespace Korvane::Testing
