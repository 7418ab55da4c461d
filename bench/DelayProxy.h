#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <list>
#include <memory>
#include <string>
#include <thread>

namespace Korvane::Bench {

/// A server seen from afar: listens on loopback and relays to the server, every byte half a round trip later,
/// as many of them as there are. It counts the trips, too: how often a client has ended what it sent by
/// asking for an answer.
class DelayProxy {
  public:
    DelayProxy(std::string host, int port, std::chrono::microseconds roundTrip);
    ~DelayProxy();
    DelayProxy(const DelayProxy&) = delete;
    DelayProxy& operator=(const DelayProxy&) = delete;

    int port() const { return mPort; }
    /// Of all clients since the beginning.
    std::size_t trips() const { return mTrips; }

  private:
    class Line;
    void accept();

    std::string mHost;
    int mServerPort;
    std::chrono::microseconds mOneWay;
    int mListener = -1;
    int mPort = 0;
    std::atomic<std::size_t> mTrips{0};
    std::atomic<bool> mStopping{false};
    std::list<std::unique_ptr<Line>> mLines;
    std::thread mAccepting;
};

} // namespace Korvane::Bench
