#include "support/Relay.h"

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>
#include <vector>

namespace Korvane::Testing {

namespace {

/// What has come; empty at the end of the line.
std::string received(int socket) {
    std::array<char, 65536> buffer;
    const auto count = ::recv(socket, buffer.data(), buffer.size(), 0);
    return {buffer.data(), static_cast<std::size_t>(count > 0 ? count : 0)};
}

bool sendAll(int socket, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto sent = ::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

int callServer(const std::string& socketFile) {
    const int server = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    socketFile.copy(address.sun_path, sizeof address.sun_path - 1);
    if (::connect(server, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0) return server;
    ::close(server);
    return -1;
}

} // namespace

Relay::Relay(std::string socketFile) : mSocketFile(std::move(socketFile)) {
    mListener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::bind(mListener, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(mListener, 20) != 0)
        throw std::runtime_error("no port for the relay");
    mThread = std::thread([this] { carry(); });
}

Relay::~Relay() {
    mEnds = true;
    mThread.join();
    for (const Line& line : mLines) {
        ::close(line.client);
        ::close(line.server);
    }
    ::close(mListener);
}

std::string Relay::host() const {
    sockaddr_in address{};
    socklen_t size = sizeof address;
    ::getsockname(mListener, reinterpret_cast<sockaddr*>(&address), &size);
    return "127.0.0.1:" + std::to_string(ntohs(address.sin_port));
}

void Relay::on(std::string_view text, Fate fate) {
    const std::lock_guard lock(mMutex);
    mText = text;
    mFate = fate;
    mSprung = false;
}

bool Relay::sprung() {
    const std::lock_guard lock(mMutex);
    return mSprung;
}

void Relay::hang() {
    const std::lock_guard lock(mMutex);
    mHangs = true;
}

void Relay::resume() {
    const std::lock_guard lock(mMutex);
    mHangs = false;
    for (Line& line : mLines) {
        line.hangs = line.hangsAnswer = false;
        sendAll(line.server, std::exchange(line.held, {}));
    }
}

void Relay::carry() {
    while (!mEnds) {
        std::vector<pollfd> sockets{{mListener, POLLIN, 0}};
        {
            const std::lock_guard lock(mMutex);
            for (const Line& line : mLines) {
                // A negative one is passed over.
                const bool still = mHangs || line.hangs;
                sockets.push_back({still ? -1 : line.client, POLLIN, 0});
                sockets.push_back({still || line.hangsAnswer ? -1 : line.server, POLLIN, 0});
            }
        }
        ::poll(sockets.data(), sockets.size(), 5);
        const std::lock_guard lock(mMutex);
        if (mHangs) continue;
        auto socket = sockets.begin() + 1;
        for (auto line = mLines.begin(); line != mLines.end();) {
            const bool asks = (socket++)->revents != 0;
            const bool answers = (socket++)->revents != 0;
            if ((!asks || carryRequest(*line)) && (!answers || carryAnswer(*line))) {
                ++line;
                continue;
            }
            ::close(line->client);
            ::close(line->server);
            line = mLines.erase(line);
        }
        if (sockets.front().revents != 0) answerCall();
    }
}

void Relay::answerCall() {
    const int client = ::accept4(mListener, nullptr, nullptr, SOCK_CLOEXEC);
    const int server = callServer(mSocketFile);
    if (server >= 0)
        mLines.push_back({.client = client, .server = server});
    else
        ::close(client);
}

// Both return whether the line goes on.
bool Relay::carryRequest(Line& line) {
    const std::string request = received(line.client);
    if (request.empty()) return false;
    line.seen = line.seen.substr(line.seen.size() - std::min<std::size_t>(line.seen.size(), 64)) + request;
    if (!mText.empty() && line.seen.find(mText) != std::string::npos) {
        mText.clear();
        mSprung = true;
        if (mFate == LoseRequest) return false;
        if (mFate == HoldRequest) {
            line.held = request;
            line.hangs = true;
            return true;
        }
        line.losesAnswer = mFate == LoseAnswer;
        line.hangsAnswer = mFate == HoldAnswer;
    }
    return sendAll(line.server, request);
}

bool Relay::carryAnswer(Line& line) {
    const std::string answer = received(line.server);
    return !answer.empty() && !line.losesAnswer && sendAll(line.client, answer);
}

} // namespace Korvane::Testing
