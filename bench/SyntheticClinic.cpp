#include "SyntheticClinic.h"

#include "BarePostgres.h"
#include "BareSqlite.h"
#include "SyntheticNip.h"
#include "SyntheticRows.h"

#include <korvane/ado/Connection.h>
#include <korvane/ado/Recordset.h>
#include <korvane/ado/postgres/PostgresConnection.h>

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <iostream>
#include <map>
#include <set>
#include <stdexcept>

namespace Korvane::Bench {

namespace {

namespace fs = std::filesystem;

/// Where the databases stand.
class Directory {
  public:
    Directory() {
        if (const char* kept = getenv("KORVANE_BENCH_DIR")) {
            mPath = kept;
            fs::create_directories(mPath);
            return;
        }
        std::string pattern = (fs::temp_directory_path() / "korvane-bench-XXXXXX").string();
        if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary directory");
        mPath = pattern;
        mRemove = true;
    }
    ~Directory() {
        std::error_code ignored;
        if (mRemove) fs::remove_all(mPath, ignored);
    }
    Directory(const Directory&) = delete;
    Directory& operator=(const Directory&) = delete;
    const fs::path& path() const { return mPath; }

  private:
    fs::path mPath;
    bool mRemove = false;
};

// Until all of it is on the disk, every save that is measured would wait for it.
void flush(const std::string& path) {
    const int file = ::open(path.c_str(), O_RDWR);
    if (file < 0 || fsync(file) != 0) throw std::runtime_error("cannot flush " + path);
    ::close(file);
}

void makeFile(const std::string& path, const Size& size) {
    std::cerr << "making " << path << " ..." << std::endl;
    const std::string address = "sqlite:" + path;
    const BareSqlite open(address);
    const auto db = ado::open(address);
    db->Execute("Pragma synchronous=off");
    writeRows(*db, size);
    db->Close();
    open.run("Pragma wal_checkpoint(truncate)");
    open.run("Analyze");
    flush(path);
}

/// Whether a database is as it was made, and may be kept for the next run, or has been customized.
enum class Structure { Untouched, Customized };

std::string fileOf(const std::string& name, const Size& size, Structure structure) {
    static const Directory directory;
    // While one connection stays, the write-ahead log does too: as on any day in a clinic, no run begins with
    // making a new one.
    static std::map<std::string, BareSqlite> open;
    const fs::path path = directory.path() / (name + ".db");
    const std::string address = "sqlite:" + path.string();
    if (open.contains(address)) return address;
    if (structure == Structure::Customized) fs::remove(path);
    if (!fs::exists(path)) {
        const fs::path unfinished = path.string() + ".new";
        fs::remove(unfinished);
        makeFile(unfinished, size);
        fs::rename(unfinished, path);
    }
    open.try_emplace(address, address);
    return address;
}

// A throw-away server goes with all that is made here; another one keeps it for the next run.
void makeOnServer(const std::string& name, const Size& size, Structure structure) {
    const Place near = serverPlaces.front();
    const BarePostgres server(serverAddress(near, "postgres"));
    KeptCells dropped;
    server.run("Set client_min_messages=warning");
    if (structure == Structure::Customized) server.run("Drop Database If Exists " + name);
    if (server.run("Select 1 From pg_database Where datname='" + name + "'", dropped) > 0) return;
    std::cerr << "making " << name << " on the server ..." << std::endl;
    const std::string unfinished = name + "_new";
    server.run("Drop Database If Exists " + unfinished);
    server.run("Create Database " + unfinished);
    {
        const std::string address = serverAddress(near, unfinished);
        writeRows(*ado::postgres::open(address, {.statement = std::chrono::minutes(10)}), size);
        BarePostgres(address).run("Vacuum Analyze");
    }
    server.run("Checkpoint");
    server.run("Alter Database " + unfinished + " Rename To " + name);
}

std::string addressOf(const std::string& name, const Place& place, const Size& size, Structure structure) {
    if (!place.onServer) return fileOf(name, size, structure);
    static std::set<std::string> made;
    const std::string onServer = "bench" + name;
    if (made.insert(onServer).second) makeOnServer(onServer, size, structure);
    return serverAddress(place, onServer);
}

} // namespace

std::string databaseOf(const Place& place, const Size& size) {
    return addressOf(size.name(), place, size, Structure::Untouched);
}

std::string databaseToCustomize(const Place& place, const Size& size) {
    return addressOf(size.name() + "_customized", place, size, Structure::Customized);
}

int freshEncounter(const Place& place, const Size& size) {
    static std::map<std::string, int> last;
    int& id = last[(place.onServer ? "server " : "") + size.name()];
    if (id == 0) {
        const auto query = ado::Recordset::create();
        query->Open("Select Max(EncounterID) As MaxID From " + tableName(1),
                    ado::open(databaseOf(place, size)));
        id = query->Value("MaxID").toInt32();
    }
    return ++id;
}

int someEncounter() {
    constexpr int stride = 7919;
    static int turn = 0;
    turn = (turn + stride) % storedEncounters;
    return turn + 1;
}

} // namespace Korvane::Bench
