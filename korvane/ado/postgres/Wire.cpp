#include <korvane/ado/postgres/Wire.h>

#include <korvane/ado/postgres/Error.h>
#include <korvane/runtime/Translation.h>

#include <libpq-fe.h>
#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <optional>
#include <utility>

namespace Korvane::ado::postgres {

namespace {

using std::chrono::milliseconds;
using Moment = std::chrono::steady_clock::time_point;

// The server stops a statement by itself when its time is up; this much later the line is taken for dead.
constexpr milliseconds grace{2000};
constexpr milliseconds withoutLimit = std::chrono::hours(24);

constexpr const char* connectionLost =
    translatable("Korvane::ado", "The connection to the database server was lost");

milliseconds until(Moment deadline) {
    const auto left = std::chrono::ceil<milliseconds>(deadline - std::chrono::steady_clock::now());
    return std::max(left, milliseconds(0));
}

// The address' own limit, which the library minds only where it blocks.
std::optional<milliseconds> connectTimeout(PGconn* handle) {
    std::optional<milliseconds> found;
    PQconninfoOption* const options = PQconninfo(handle);
    for (const PQconninfoOption* option = options; option && option->keyword; ++option) {
        if (std::string_view(option->keyword) != "connect_timeout" || !option->val) continue;
        if (const int seconds = std::atoi(option->val); seconds > 0) found = std::chrono::seconds(seconds);
    }
    PQconninfoFree(options);
    return found;
}

} // namespace

void ClearResult::operator()(pg_result* result) const {
    PQclear(result);
}

Wire::Wire(const std::string& address, const Limits& limits) : mOwned(true), mLimits(limits) {
    // What is given first holds unless the address says otherwise.
    const char* const keywords[] = {"keepalives_idle",  "keepalives_interval",
                                    "keepalives_count", "tcp_user_timeout",
                                    "application_name", "dbname",
                                    "client_encoding",  nullptr};
    const char* const values[] = {"30", "10", "3", "60000", "Korvane", address.c_str(), "UTF8", nullptr};
    mHandle = PQconnectStartParams(keywords, values, 1);
    if (!mHandle) throw RuntimeError(RuntimeError::OutOfMemory);
    if (const auto given = connectTimeout(mHandle)) mLimits.connect = *given;
    try {
        connect(PQconnectPoll);
    } catch (...) {
        PQfinish(mHandle);
        throw;
    }
    // "Table exists, skipping" is not for the standard error of a host.
    PQsetNoticeReceiver(
        mHandle, [](void*, const PGresult*) {}, nullptr);
}

Wire::Wire(pg_conn* lent, StillLent stillLent)
    : mHandle(lent), mOwned(false), mStillLent(std::move(stillLent)) {
    mLimits.statement = milliseconds(0);
}

Wire::~Wire() {
    hangUp();
}

void Wire::hangUp() {
    if (mOwned) PQfinish(std::exchange(mHandle, nullptr));
}

template <typename Poll>
void Wire::connect(Poll poll) {
    const PGVerbosity before = PQsetErrorVerbosity(mHandle, PQERRORS_VERBOSE);
    const Moment deadline = std::chrono::steady_clock::now() + mLimits.connect;
    PostgresPollingStatusType state = PGRES_POLLING_WRITING;
    while (PQstatus(mHandle) != CONNECTION_BAD && state != PGRES_POLLING_OK &&
           state != PGRES_POLLING_FAILED) {
        if (!await(state == PGRES_POLLING_READING ? POLLIN : POLLOUT, until(deadline))) {
            throw connectionError(nullptr, translatable("Korvane::ado",
                                                        "The database server did not answer in time; check "
                                                        "that it is running and that the network is up"));
        }
        state = poll(mHandle);
    }
    PQsetErrorVerbosity(mHandle, before);
    if (PQstatus(mHandle) != CONNECTION_OK) throw refusalError(mHandle);
}

void Wire::reset() {
    mLost = true;
    if (PQresetStart(mHandle) == 0)
        throw connectionError(mHandle,
                              translatable("Korvane::ado", "The database server could not be reached"));
    connect(PQresetPoll);
    mLost = false;
}

bool Wire::isUp() const {
    return mHandle && !mLost && !isTakenBack() && PQstatus(mHandle) == CONNECTION_OK;
}

Wire::Transaction Wire::transaction() const {
    // Nobody sends ahead but inside a transaction.
    if (mUnderWay) return Transaction::Open;
    switch (PQtransactionStatus(mHandle)) {
    case PQTRANS_INTRANS:
        return Transaction::Open;
    case PQTRANS_INERROR:
        return Transaction::Failed;
    default:
        return Transaction::None;
    }
}

bool Wire::has(const char* setting, std::string_view value) const {
    const char* has = PQparameterStatus(mHandle, setting);
    return has && has == value;
}

std::vector<Answer> Wire::send(std::span<const Command> commands) {
    begin(commands);
    std::vector<Answer> answers;
    answers.reserve(commands.size());
    while (answers.size() < commands.size())
        answers.push_back(next());
    if (Answer failure = end(); failure && !answers.empty()) answers.back() = std::move(failure);
    return answers;
}

void Wire::begin(std::span<const Command> commands) {
    // What came back would be taken for the answers to what went before.
    if (mUnderWay) throw RuntimeError(RuntimeError::InvalidProcedureCall);
    mUnderWay = true;
    mWasNonBlocking = PQisnonblocking(mHandle);
    if (PQsetnonblocking(mHandle, 1) != 0 || PQenterPipelineMode(mHandle) != 1) {
        if (PQstatus(mHandle) != CONNECTION_OK) lose(connectionLost);
        leavePipeline();
        throw RuntimeError(
            RuntimeError::InvalidConnection,
            Korvane::translate("Korvane::ado",
                               "The connection cannot be used now: its owner has something pending on it."));
    }
    for (const Command& command : commands)
        queue(command);
    if (PQpipelineSync(mHandle) == 0) lose(connectionLost);
}

void Wire::leavePipeline() {
    PQexitPipelineMode(mHandle);
    PQsetnonblocking(mHandle, mWasNonBlocking);
    mUnderWay = false;
}

void Wire::queue(const Command& command) {
    std::vector<const char*> values;
    for (const auto& value : command.values)
        values.push_back(value ? value->c_str() : nullptr);
    const auto types = command.types.empty() ? nullptr : command.types.data();
    const auto count =
        static_cast<int>(command.kind == Command::Prepare ? command.types.size() : values.size());
    int sent = 0;
    switch (command.kind) {
    case Command::Run:
        sent = PQsendQueryParams(mHandle, command.text.c_str(), count, types, values.data(), nullptr, nullptr,
                                 0);
        break;
    case Command::Prepare:
        sent = PQsendPrepare(mHandle, command.name.c_str(), command.text.c_str(), count, types);
        break;
    case Command::Prepared:
        sent = PQsendQueryPrepared(mHandle, command.name.c_str(), count, values.data(), nullptr, nullptr, 0);
        break;
    }
    if (sent != 0 && command.atOnce) sent = PQsendFlushRequest(mHandle);
    if (sent == 0) lose(connectionLost);
}

Answer Wire::next() {
    for (;;) {
        Answer answer = receive();
        if (answer && PQresultStatus(answer.get()) == PGRES_PIPELINE_SYNC)
            lose(translatable("Korvane::ado", "The database server gave an answer that was not understood"));
        if (answer) return answer;
        // Nothing is the end of one command's answer.
        if (!isUp()) lose(connectionLost);
    }
}

void Wire::takeIn() {
    if (mUnderWay && PQconsumeInput(mHandle) != 0) PQisBusy(mHandle);
}

Answer Wire::end() {
    Answer failure;
    for (;;) {
        Answer answer = receive();
        if (!answer && !isUp()) lose(connectionLost);
        if (!answer) continue;
        if (PQresultStatus(answer.get()) == PGRES_PIPELINE_SYNC) break;
        failure = std::move(answer);
    }
    leavePipeline();
    return failure;
}

// The next answer; every byte that comes begins the waiting anew.
Answer Wire::receive() {
    const milliseconds patience = mLimits.statement.count() > 0 ? mLimits.statement + grace : withoutLimit;
    while (PQisBusy(mHandle) != 0) {
        const int unsent = PQflush(mHandle);
        // What the server said before it went may still be read.
        if (unsent < 0) await(POLLIN, grace);
        const auto events = static_cast<short>(unsent > 0 ? POLLIN | POLLOUT : POLLIN);
        if (unsent >= 0 && !await(events, patience))
            lose(translatable("Korvane::ado",
                              "The database server has not answered in time; the connection is given up"));
        const bool read = PQconsumeInput(mHandle) != 0;
        if (!read || (unsent < 0 && PQisBusy(mHandle) != 0)) lose(connectionLost);
    }
    return Answer(PQgetResult(mHandle));
}

bool Wire::await(short events, milliseconds patience) const {
    pollfd line{PQsocket(mHandle), events, 0};
    const Moment deadline = std::chrono::steady_clock::now() + patience;
    for (;;) {
        const int ready = ::poll(&line, 1, static_cast<int>(until(deadline).count()));
        if (ready > 0) return true;
        if (ready == 0) return false;
        if (errno != EINTR) return true; // the client library finds out what is wrong
    }
}

void Wire::lose(const char* what) {
    mLost = true;
    const RuntimeError error = connectionError(mHandle, what);
    // When the network is back the server has to learn that nobody is there any more: what it holds for us,
    // others wait for.
    if (mOwned && PQsocket(mHandle) >= 0) ::shutdown(PQsocket(mHandle), SHUT_RDWR);
    if (mUnderWay) leavePipeline();
    throw error;
}

} // namespace Korvane::ado::postgres
