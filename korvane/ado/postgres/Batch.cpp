#include <korvane/ado/postgres/Batch.h>

#include <korvane/ado/postgres/Error.h>

#include <libpq-fe.h>

#include <algorithm>
#include <array>
#include <utility>

namespace Korvane::ado::postgres {

Batch::Batch(Wire& wire, bool guarded, std::vector<Command> before, std::vector<Command> within,
             std::vector<Request> requests)
    : mWire(wire), mGuarded(guarded), mRequests(std::move(requests)) {
    mWire.begin(commands(std::move(before), std::move(within)));
}

std::vector<Command> Batch::commands(std::vector<Command> before, std::vector<Command> within) {
    std::vector<Command> commands = std::move(before);
    mGuard = commands.size();
    if (mGuarded) commands.push_back({.text = "Savepoint korvane_guard"});
    for (Command& command : within)
        commands.push_back(std::move(command));
    mSteps.resize(commands.size());
    for (Request& request : mRequests) {
        Form* form = request.form;
        const auto same = [&](const Step& step) { return step.prepares == form; };
        if (form && !form->prepared && std::none_of(mSteps.begin(), mSteps.end(), same)) {
            mSteps.push_back({.prepares = form});
            commands.push_back({Command::Prepare, form->name, request.shape->translation.text, form->types});
        }
        mSteps.push_back({.isRequest = true});
        commands.push_back(std::move(request.command));
    }
    if (mGuarded) commands.push_back({.text = "Release Savepoint korvane_guard"});
    mSteps.resize(commands.size());
    return commands;
}

Answer Batch::next() {
    Answer answer;
    bool isRequest = false;
    while (!isRequest) {
        isRequest = mSteps[mReceived].isRequest;
        answer = receive();
    }
    if (++mAnswered == mRequests.size()) finish();
    return answer;
}

Answer Batch::receive() {
    Answer answer = mWire.next();
    const Step& step = mSteps[mReceived++];
    if (PQresultStatus(answer.get()) == PGRES_FATAL_ERROR) fail(answer);
    if (step.prepares) step.prepares->prepared = true;
    return answer;
}

void Batch::finish() {
    while (mReceived < mSteps.size())
        receive();
    end();
}

void Batch::end() {
    mIsOver = true;
    const Answer failure = mWire.end();
    // In a batch of many, one may have had to make room for another.
    for (const Request& request : mRequests) {
        if (request.form && request.shape->forgotten) request.shape->drop();
    }
    if (failure) throw engineError(failure.get());
}

void Batch::fail(const Answer& failure) {
    const bool undoes = mGuarded && mReceived > mGuard + 1;
    for (; mReceived < mSteps.size(); ++mReceived)
        mWire.next();
    end();
    const std::array<Command, 2> undo{Command{.text = "Rollback To Savepoint korvane_guard"},
                                      Command{.text = "Release Savepoint korvane_guard"}};
    if (undoes) mWire.send(undo);
    throw engineError(failure.get());
}

} // namespace Korvane::ado::postgres
