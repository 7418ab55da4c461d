#pragma once

#include "support/RecordingConnection.h"

#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <memory>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace Korvane::Testing {

/// Runs `work` in processes of their own, each of which is killed one step (a statement or a commit) further
/// than the one before, until one comes to the end. After each killed one `look` says whether all is still as
/// it was before. Nobody else may have the database open.
///
///     killAtEachStep(nips.address(), [](auto& db, auto& begin) {
///         cNIP nip;
///         return nip.LoadStructure(db) && begin() && nip.DeleteGroup(1); // the steps count from `begin`
///     }, [&] { return stored() == before; });
inline void killAtEachStep(const std::string& address,
                           const std::function<bool(const std::shared_ptr<RecordingConnection>& db,
                                                    const std::function<bool()>& begin)>& work,
                           const std::function<bool()>& look) {
    int steps = 0;
    for (int status = -1; status != 0; ++steps) {
        ASSERT_LT(steps, 200);
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            const auto db = std::make_shared<RecordingConnection>(ado::open(address));
            db->insteadOfFailing = [] { kill(getpid(), SIGKILL); };
            _exit(work(db, [&] { return (db->failAfter = steps) >= 0; }) ? 0 : 1);
        }
        waitpid(child, &status, 0);
        ASSERT_TRUE(status == 0 || WIFSIGNALED(status)) << "it failed by itself";
        if (status != 0) {
            ASSERT_TRUE(look()) << "killed at step " << steps;
        }
    }
    EXPECT_GT(steps, 4);
}

} // namespace Korvane::Testing
