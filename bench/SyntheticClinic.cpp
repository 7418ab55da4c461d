#include "SyntheticClinic.h"

#include "BareSqlite.h"
#include "SyntheticNip.h"

#include <korvane/ado/Connection.h>
#include <korvane/data/Tables.h>

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <iostream>
#include <map>
#include <stdexcept>
#include <vector>

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

std::string literalText(std::string_view text) {
    return "'" + std::string(text) + "'";
}

void writeField(const BareSqlite& db, const Size& size, int group, int field) {
    const std::string id = std::to_string((group - 1) * size.fields + field);
    const std::string owner = std::to_string(group + 1);
    db.run("Insert Into DBFields "
           "(ID,Code,FieldName,FieldCaption,DBFieldGroupID,MaxLength,dataType,DisplayType,Indexed,"
           "Required,Ordinal,InitialValueRuleID) Values (" +
           id + ",1," + literalText(fieldName(field)) + "," + literalText("Caption of field " + id) + "," +
           owner + ",255,'dbText'," + literalText(displayType(group, field)) + ",0,0," +
           std::to_string(field) + ",0)");
    int ordinal = 0;
    for (const std::string& value : allowedValues(group, field))
        db.run(
            "Insert Into DBFieldValues (FieldValue,DefaultValue,FieldName,DBFieldGroupID,Ordinal) Values (" +
            literalText(value) + ",0," + literalText(fieldName(field)) + "," + owner + "," +
            std::to_string(++ordinal) + ")");
}

// Doubles what is there until it is enough: faster than any number of inserts.
void multiplyRows(const BareSqlite& db, const std::string& table, const std::string& columns, int present) {
    for (; present < storedEncounters; present *= 2) {
        const std::string offset = std::to_string(present);
        db.run("Insert Into " + table + " Select EncounterID+" + offset + "," + columns + " From " + table +
               " Where EncounterID<=" + std::to_string(storedEncounters - present));
    }
}

void writeGroup(const BareSqlite& db, const Size& size, int group) {
    constexpr int distinctRows = 16;
    const std::string table = tableName(group);
    db.run("Insert Into DBFieldGroups (DBFieldGroupID,GroupName,TableName,Ordinal) Values (" +
           std::to_string(group + 1) + "," + literalText("Group " + std::to_string(group)) + "," +
           literalText(table) + "," + std::to_string(group) + ")");
    std::string declarations = "EncounterID INTEGER PRIMARY KEY";
    std::string columns;
    for (int field = 1; field <= size.fields; ++field) {
        writeField(db, size, group, field);
        declarations += "," + fieldName(field) + " VARCHAR(255)";
        columns += (field == 1 ? "" : ",") + fieldName(field);
    }
    db.run("Create Table " + table + " (" + declarations + ")");
    for (int encounter = 1; encounter <= distinctRows; ++encounter)
        db.run(insertStatement(size, group, encounter, encounter));
    multiplyRows(db, table, columns, distinctRows);
}

void writeEncounters(const BareSqlite& db) {
    db.run("Insert Into Encounter Values (1,1,'P-0001',1,0,0,'2026-11-15 17:21:51',1,'Visit',0)");
    multiplyRows(db, "Encounter",
                 "EncounterMethodID,PatientID,ProviderID,ForeignProviderID,LocationID,EncounterDate,Outgoing,"
                 "Description,Transport",
                 1);
    db.run("Insert Into Provider Values (1,'Physician','Anna','Köhler','MD')");
}

// Until all of it is on the disk, every save that is measured would wait for it.
void flush(const std::string& path) {
    const int file = ::open(path.c_str(), O_RDWR);
    if (file < 0 || fsync(file) != 0) throw std::runtime_error("cannot flush " + path);
    ::close(file);
}

void make(const std::string& path, const Size& size) {
    std::cerr << "making " << path << " ..." << std::endl;
    installTables(*ado::open("sqlite:" + path));
    const BareSqlite db(path);
    db.run("Pragma synchronous=off");
    db.run("Begin");
    for (int group = 1; group <= size.groups; ++group)
        writeGroup(db, size, group);
    writeEncounters(db);
    db.run("Commit");
    db.run("Pragma wal_checkpoint(truncate)");
    db.run("Analyze");
    flush(path);
}

} // namespace

const std::string& databaseOf(const Size& size) {
    static const Directory directory;
    static std::map<std::string, std::string> made;
    // While one connection stays, the write-ahead log does too: as on any day in a clinic, no run begins with
    // making a new one.
    static std::vector<BareSqlite> open;
    std::string& path = made[size.name()];
    if (path.empty()) {
        const fs::path file = directory.path() / (size.name() + ".db");
        if (!fs::exists(file)) {
            const fs::path unfinished = file.string() + ".new";
            fs::remove(unfinished);
            make(unfinished, size);
            fs::rename(unfinished, file);
        }
        path = file;
        open.emplace_back(path);
    }
    return path;
}

int freshEncounter(const Size& size) {
    static std::map<std::string, int> last;
    int& id = last[size.name()];
    if (id == 0) {
        KeptCells cells;
        const BareSqlite db(databaseOf(size));
        const auto query = db.prepare("Select Max(EncounterID) From " + tableName(1));
        sqlite3_step(query.get());
        id = sqlite3_column_int(query.get(), 0);
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
