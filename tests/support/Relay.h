#pragma once

#include <atomic>
#include <list>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

namespace Korvane::Testing {

/// The network between a client and a server, in the test's hands: it takes calls on a port of this machine
/// and carries them to the server's socket file, until it is told to hang, or to lose what it carries.
///
///     Relay network(server.socketFile());
///     auto db = ado::open("postgresql://clinic@" + network.host() + "/postgres");
///     network.on("Commit", Relay::LoseAnswer);
///     EXPECT_THROW(db->CommitTrans(), RuntimeError);
///     EXPECT_TRUE(network.sprung());
class Relay {
  public:
    enum Fate {
        LoseRequest, ///< ends the line; the server never sees it
        LoseAnswer,  ///< ends the line once the server has answered
        HoldRequest, ///< hangs, until `resume`
        HoldAnswer   ///< carries it over and hangs
    };

    explicit Relay(std::string socketFile);
    ~Relay();
    Relay(const Relay&) = delete;
    Relay& operator=(const Relay&) = delete;

    /// "127.0.0.1:40000".
    std::string host() const;

    /// What becomes of the next request that holds the text; later ones are carried as ever.
    void on(std::string_view text, Fate fate);
    /// Whether it has come.
    bool sprung();
    /// Carries nothing any more, and answers no call.
    void hang();
    /// Carries on, with what was held.
    void resume();

  private:
    struct Line {
        int client;
        int server;
        std::string seen{}; ///< the end of what was carried, for a text that comes in two
        std::string held{};
        bool hangs = false;
        bool losesAnswer = false;
        bool hangsAnswer = false;
    };

    void carry();
    void answerCall();
    bool carryRequest(Line& line);
    bool carryAnswer(Line& line);

    const std::string mSocketFile;
    int mListener = -1;
    std::mutex mMutex;
    std::list<Line> mLines;
    std::string mText;
    Fate mFate = LoseRequest;
    bool mSprung = false;
    bool mHangs = false;
    std::atomic<bool> mEnds = false;
    std::thread mThread;
};

} // namespace Korvane::Testing
