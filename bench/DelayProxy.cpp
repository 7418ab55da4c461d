#include "DelayProxy.h"

#include "TripCounter.h"

#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <deque>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace Korvane::Bench {

namespace {

using Clock = std::chrono::steady_clock;

void sendAtOnce(int socket) {
    const int yes = 1;
    setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
}

int connectTo(const std::string& host, int port) {
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found) != 0) return -1;
    int connected = -1;
    for (const addrinfo* each = found; each && connected < 0; each = each->ai_next) {
        connected = ::socket(each->ai_family, each->ai_socktype, each->ai_protocol);
        if (connected >= 0 && ::connect(connected, each->ai_addr, each->ai_addrlen) == 0) break;
        if (connected >= 0) ::close(connected);
        connected = -1;
    }
    freeaddrinfo(found);
    return connected;
}

bool sendAll(int socket, const std::vector<char>& bytes) {
    for (std::size_t sent = 0; sent < bytes.size();) {
        const ssize_t count = ::send(socket, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
        if (count <= 0) return false;
        sent += static_cast<std::size_t>(count);
    }
    return true;
}

/// Waits for bytes until it is time for something else.
bool readable(int socket, Clock::time_point until) {
    pollfd line{socket, POLLIN, 0};
    const auto left = std::max(std::chrono::nanoseconds(0), std::chrono::nanoseconds(until - Clock::now()));
    const auto whole = std::chrono::floor<std::chrono::seconds>(left);
    const timespec patience{whole.count(), (left - whole).count()};
    return ::ppoll(&line, 1, &patience, nullptr) > 0;
}

/// Relays one direction until its sender is done.
template <typename Seen>
void relay(int from, int to, std::chrono::microseconds delay, Seen seen) {
    struct Part {
        Clock::time_point due;
        std::vector<char> bytes;
    };
    std::deque<Part> underWay;
    std::array<char, 65536> buffer;
    for (;;) {
        const auto due = underWay.empty() ? Clock::now() + std::chrono::hours(1) : underWay.front().due;
        if (readable(from, due)) {
            const ssize_t count = ::recv(from, buffer.data(), buffer.size(), 0);
            const auto arrived = Clock::now();
            if (count <= 0) break;
            const auto end = buffer.begin() + count;
            seen(std::string_view(buffer.data(), static_cast<std::size_t>(count)));
            underWay.push_back({arrived + delay, {buffer.begin(), end}});
        }
        for (; !underWay.empty() && underWay.front().due <= Clock::now(); underWay.pop_front())
            if (!sendAll(to, underWay.front().bytes)) return;
    }
    for (const Part& part : underWay)
        sendAll(to, part.bytes);
    ::shutdown(to, SHUT_WR);
}

} // namespace

/// One client with its connection to the server.
class DelayProxy::Line {
  public:
    Line(int client, int server, DelayProxy& proxy)
        : mClient(client), mServer(server), mThere([this, &proxy] {
              TripCounter counter;
              relay(mClient, mServer, proxy.mOneWay,
                    [&](std::string_view bytes) { proxy.mTrips += counter.count(bytes); });
          }),
          mBack([this, &proxy] { relay(mServer, mClient, proxy.mOneWay, [](std::string_view) {}); }) {}
    ~Line() {
        ::shutdown(mClient, SHUT_RDWR);
        ::shutdown(mServer, SHUT_RDWR);
        mThere.join();
        mBack.join();
        ::close(mClient);
        ::close(mServer);
    }
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

  private:
    int mClient;
    int mServer;
    std::thread mThere;
    std::thread mBack;
};

DelayProxy::DelayProxy(std::string host, int port, std::chrono::microseconds roundTrip)
    : mHost(std::move(host)), mServerPort(port), mOneWay(roundTrip / 2) {
    mListener = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto* address = reinterpret_cast<sockaddr*>(&place);
    socklen_t length = sizeof place;
    if (mListener < 0 || ::bind(mListener, address, length) != 0 || ::listen(mListener, SOMAXCONN) != 0 ||
        ::getsockname(mListener, address, &length) != 0)
        throw std::runtime_error("the delaying proxy cannot listen");
    mPort = ntohs(place.sin_port);
    mAccepting = std::thread([this] { accept(); });
}

DelayProxy::~DelayProxy() {
    mStopping = true;
    ::shutdown(mListener, SHUT_RDWR);
    mAccepting.join();
    ::close(mListener);
}

void DelayProxy::accept() {
    while (!mStopping) {
        const int client = ::accept(mListener, nullptr, nullptr);
        if (client < 0) continue;
        const int server = connectTo(mHost, mServerPort);
        sendAtOnce(client);
        sendAtOnce(server);
        mLines.push_back(std::make_unique<Line>(client, server, *this));
    }
}

} // namespace Korvane::Bench
