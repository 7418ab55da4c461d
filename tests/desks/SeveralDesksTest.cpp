#include "support/NipDatabase.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace Korvane {

using namespace Testing;

namespace {

constexpr int groups = 3;

std::string table(int group) {
    return "NIP_Custom" + std::to_string(group);
}

/// A clinic at whose database several programs work at the same time.
class Clinic : public NipDatabase {
  public:
    Clinic() {
        for (int i = 1; i <= groups; ++i) {
            group(i + 1, "Group", table(i));
            field(i + 1, table(i), "Note");
        }
        insert("Provider", {{"ProviderID", 1}, {"LastName", "Hale"}});
    }

    /// Lets as many desks as there are store their visits, all at once, and reads what they say of it.
    void work(const std::string& program, const std::string& how, int desks, int visits) {
        int ready[2];
        int begin[2];
        ASSERT_EQ(pipe2(ready, O_CLOEXEC) + pipe2(begin, O_CLOEXEC), 0);
        std::vector<pid_t> running;
        for (int desk = 0; desk < desks; ++desk)
            running.push_back(start(
                {program, address(), how, std::to_string(desk), std::to_string(visits), dir.path().string()},
                begin[0], ready[1]));
        close(ready[1]);
        close(begin[0]);
        char byte = 0;
        for (int desk = 0; desk < desks; ++desk)
            ASSERT_EQ(read(ready[0], &byte, 1), 1) << "a desk cannot begin: " << errorLog();
        close(begin[1]);
        for (const pid_t desk : running) {
            int status = -1;
            waitpid(desk, &status, 0);
            ASSERT_EQ(status, 0);
        }
        close(ready[0]);
        for (int desk = 0; desk < desks; ++desk)
            hear(dir.read("said" + std::to_string(desk)));
        ASSERT_EQ(static_cast<int>(stored.size() + dropped.size()), desks * visits);
    }

    /// Every row of a query, in order.
    std::vector<std::string> all(const std::string& statement) const {
        std::istringstream text(rows(statement));
        std::vector<std::string> found{std::istream_iterator<std::string>(text), {}};
        std::ranges::sort(found);
        return found;
    }

    struct Stored {
        std::string token, encounter, patient, attachment;
    };
    std::vector<Stored> stored;
    std::set<std::string> dropped;
    int refused = 0;

    /// The rows that there must be, made of what the desks have been told; an empty one is none.
    template <typename Row>
    std::vector<std::string> expected(Row row) const {
        std::vector<std::string> wanted;
        for (const Stored& one : stored)
            wanted.push_back(row(one));
        std::erase(wanted, "");
        std::ranges::sort(wanted);
        return wanted;
    }

  private:
    /// With the line by which they all begin as its input, and that by which it says it is ready as number 3.
    pid_t start(std::vector<std::string> words, int begin, int ready) {
        const int said = open(dir.file("said" + words[3]).c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
        std::vector<char*> arguments;
        for (std::string& word : words)
            arguments.push_back(word.data());
        arguments.push_back(nullptr);
        const pid_t child = fork();
        if (child != 0) return close(said), child;
        dup2(begin, 0);
        dup2(said, 1);
        dup2(ready, 3);
        execv(arguments[0], arguments.data());
        _exit(127);
    }

    void hear(const std::string& said) {
        std::istringstream text(said);
        std::string what;
        Stored one;
        while (text >> what >> one.token) {
            if (what == "refused") ++refused;
            if (what == "dropped") dropped.insert(one.token);
            if (what != "stored") continue;
            text >> one.encounter >> one.patient >> one.attachment;
            stored.push_back(one);
        }
    }
};

struct Way {
    const char* program;
    const char* how;
    int desks, visits;
    bool collides; ///< whether two can choose the same number
};

std::vector<Way> ways() {
    const bool onServer = ScratchDatabase::onServer();
    std::vector<Way> list{{KORVANE_BATCH_DESK, "statements", 4, 80, true},
                          {KORVANE_BATCH_DESK, "whole", 4, 60, onServer}};
    if (onServer) list.push_back({KORVANE_BATCH_DESK, "serializable", 4, 30, true});
#ifdef KORVANE_PANEL_DESK
    list.push_back({KORVANE_PANEL_DESK, "panel", 4, 30, onServer});
#endif
    return list;
}

} // namespace

TEST(SeveralDesks, StoreEveryVisitOnceUnderANumberOfItsOwn) {
    for (const Way& way : ways()) {
        SCOPED_TRACE(way.how);
        Clinic clinic;
        clinic.work(way.program, way.how, way.desks, way.visits);
        if (testing::Test::HasFatalFailure()) return;
        EXPECT_EQ(clinic.all("Select EncounterID, PatientID, Description From Encounter"),
                  clinic.expected([](const auto& visit) {
                      return visit.encounter + "|" + visit.patient + "|" + visit.token;
                  }));
        const auto values =
            clinic.expected([](const auto& visit) { return visit.encounter + "|" + visit.token; });
        for (int group = 1; group <= groups; ++group)
            EXPECT_EQ(clinic.all("Select EncounterID, Note From " + table(group)), values);
        EXPECT_EQ(clinic.all("Select AttachmentID, EncounterID, Filename From Attachment"),
                  clinic.expected([](const auto& visit) {
                      return visit.attachment == "0"
                                 ? std::string()
                                 : visit.attachment + "|" + visit.encounter + "|" + visit.token;
                  }));
        EXPECT_GE(clinic.refused, way.collides ? 1 : 0) << "they did not meet, so nothing is shown by this";
        std::cout << way.how << ": " << clinic.stored.size() << " stored, " << clinic.refused << " refused, "
                  << clinic.dropped.size() << " dropped\n";
    }
}

TEST(SeveralDesks, LeaveTheWholeValuesOfOneOfThemInAnEncounter) {
    constexpr int visits = 60;
    Clinic clinic;
    for (int i = 0; i < visits; ++i)
        clinic.encounter(i + 1, "P" + std::to_string(i % 3), "1/2/2026");
    clinic.work(KORVANE_BATCH_DESK, "values", 4, visits);
    if (testing::Test::HasFatalFailure()) return;
    const auto first = clinic.all("Select EncounterID, Note From " + table(1));
    EXPECT_EQ(first.size(), std::size_t{visits});
    EXPECT_THAT(clinic.expected([](const auto& visit) { return visit.encounter + "|" + visit.token; }),
                testing::IsSupersetOf(first));
    for (int group = 2; group <= groups; ++group)
        EXPECT_EQ(clinic.all("Select EncounterID, Note From " + table(group)), first);
}

} // namespace Korvane
