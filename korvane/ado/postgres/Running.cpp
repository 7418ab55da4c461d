// How a session runs statements: alone, or together with others that were announced.

#include <korvane/ado/postgres/Session.h>

#include <korvane/ado/postgres/ChangedTable.h>
#include <korvane/ado/postgres/Error.h>
#include <korvane/ado/postgres/Translate.h>
#include <korvane/ado/postgres/Values.h>
#include <korvane/ado/sql/Statement.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

#include <libpq-fe.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>

namespace Korvane::ado::postgres {

namespace {

// What a failure may come from when another program has changed the tables, or when a value that was lifted
// out stands where the engine cannot tell its type: as literal text, with the tables read anew, it may do.
bool mayDoBetterAsText(const RuntimeError& error) {
    constexpr std::array<std::string_view, 11> states{"0A000", "26000", "42P01", "42703", "42704", "42804",
                                                      "42883", "42725", "42P18", "22P02", "22007"};
    if (error.NativeCode() == 0)
        return error.Number() == RuntimeError::TypeMismatch || error.Number() == RuntimeError::Overflow;
    return std::find(states.begin(), states.end(), sqlState(error.NativeCode())) != states.end();
}

// Whether trying the statements one by one would only take as long again, or run into the same.
bool endsTheBatch(const RuntimeError& error) {
    const std::string state = sqlState(error.NativeCode());
    return state == "57014" || state.starts_with("40") || state.starts_with("25") || state.starts_with("53");
}

bool failed(const Answer& answer) {
    return PQresultStatus(answer.get()) == PGRES_FATAL_ERROR;
}

void requireOneStatement(const sql::Statement& statement) {
    const auto& tokens = statement.tokens;
    if (tokens.front().kind == sql::TokenKind::End)
        throw RuntimeError(RuntimeError::InvalidArgument, "There is no statement to run.");
    if (tokens.front().isWord("copy"))
        throw RuntimeError(RuntimeError::InvalidArgument, "Copy cannot be run over this connection.");
    for (std::size_t at = 0; at + 1 < tokens.size(); ++at) {
        if (!tokens[at].isSymbol(';')) continue;
        const sql::Token& behind = tokens[at + 1];
        if (behind.kind != sql::TokenKind::End && !behind.isSymbol(';'))
            throw RuntimeError(RuntimeError::InvalidArgument, "Only one statement can be run at a time.");
    }
}

// Unique in the process, since a lent handle may pass through several sessions.
std::string newName() {
    static std::atomic<unsigned> last{0};
    return "korvane_" + std::to_string(++last);
}

} // namespace

std::shared_ptr<Shape> Session::makeShape(std::string_view text, std::string_view addedColumns) {
    const sql::Statement statement = sql::analyse(text);
    requireOneStatement(statement);
    requireSchema();
    auto shape = std::make_shared<Shape>();
    shape->text = text;
    shape->translation = translate(text, mSchema, addedColumns);
    shape->effect = sql::effectOf(text);
    shape->dropped = mDropped;
    if (shape->effect == sql::Effect::Schema) shape->table = changedTable(text);
    shape->isInsert = statement.tokens.front().isWord("insert");
    const bool namesTable = shape->isInsert || statement.tokens.front().isWord("update");
    if (namesTable && !statement.scopes.empty() && !statement.scopes.front().sources.empty())
        shape->table = lowerCase(statement.scopes.front().sources.front().table);
    return shape;
}

Form& Session::formFor(Shape& shape, std::vector<TypeId> types) {
    for (Form& form : shape.forms) {
        if (form.types == types) return form;
    }
    return shape.forms.emplace_back(Form{std::move(types), newName(), false, nullptr});
}

Session::Request Session::request(std::string_view statement) {
    mLifter.lift(statement);
    Request request;
    request.shape = mShapes.find(mLifter.shape());
    if (!request.shape) {
        request.shape = makeShape(mLifter.shape(), {});
        if (request.shape->effect != sql::Effect::Schema) mShapes.keep(request.shape);
    }
    const auto& rules = request.shape->translation.parameters;
    const auto& literals = mLifter.literals();
    if (rules.size() != literals.size()) {
        throw RuntimeError(
            RuntimeError::InvalidArgument,
            "The statement holds a parameter mark; values are written into the statement itself.");
    }
    std::vector<TypeId> types;
    for (std::size_t i = 0; i < literals.size(); ++i) {
        const sql::ColumnValue value =
            rules[i].column ? sql::toColumn(literals[i], *rules[i].column, rules[i].use, mScratch)
                            : sql::asItStands(literals[i], mScratch);
        types.push_back(parameterType(rules[i], value));
        request.command.values.push_back(parameterText(value));
    }
    if (request.shape->effect == sql::Effect::Schema) {
        request.command.text = request.shape->translation.text;
        return request;
    }
    request.form = &formFor(*request.shape, std::move(types));
    request.command.kind = Command::Prepared;
    request.command.name = request.form->name;
    return request;
}

Session::Request Session::literalRequest(std::string_view statement, std::string_view addedColumns) {
    Request request;
    request.shape = makeShape(statement, addedColumns);
    if (!request.shape->translation.parameters.empty()) {
        throw RuntimeError(
            RuntimeError::InvalidArgument,
            "The statement holds a parameter mark; values are written into the statement itself.");
    }
    request.command.text = request.shape->translation.text;
    return request;
}

Outcome Session::perform(std::string_view statement) {
    if (auto outcome = takeAnnounced(statement)) return std::move(*outcome);
    if (sql::effectOf(statement) != sql::Effect::None) mAnnouncements.dropReads();
    const bool knewSchema = mSchema.isRead();
    bool nothingPrepared = false;
    try {
        Request once = request(statement);
        return outcomeOf(once, std::move(run({&once, 1}).front()));
    } catch (const RuntimeError& error) {
        const bool isOurs = error.NativeCode() == 0;
        if (State() == 0 || !mayDoBetterAsText(error) || (isOurs && !knewSchema)) throw;
        nothingPrepared = sqlState(error.NativeCode()) == "26000";
    }
    forgetSchema();
    // The owner of a lent handle may have discarded what was prepared on it.
    if (nothingPrepared) mDropped->clear();
    Request once = literalRequest(statement, {});
    return outcomeOf(once, std::move(run({&once, 1}).front()));
}

std::optional<Outcome> Session::takeAnnounced(std::string_view statement) {
    Announcements::Item* item = mAnnouncements.find(statement);
    if (!item) return std::nullopt;
    if (!item->outcome) {
        sendAnnounced(*item);
        item = mAnnouncements.find(statement);
    }
    if (!item) return std::nullopt;
    item->taken = true;
    return std::exchange(item->outcome, std::nullopt);
}

// Sends what was announced, as far as it may go ahead. When one of them fails, all is as if none had been
// sent: they are run one by one, as they are asked for, and the one that fails says so.
void Session::sendAnnounced(const Announcements::Item& first) {
    auto ahead = requestsFrom(first);
    if (ahead.size() < 2) return;
    std::vector<Request> requests;
    requests.reserve(ahead.size());
    for (auto& [item, request] : ahead)
        requests.push_back(std::move(request));
    std::vector<Answer> answers;
    try {
        answers = run(requests);
    } catch (const RuntimeError& error) {
        mAnnouncements.clear();
        if (State() == 0 || endsTheBatch(error)) throw;
        return;
    }
    for (std::size_t i = 0; i < ahead.size(); ++i) {
        Announcements::Item& item = *ahead[i].first;
        const Shape& shape = *requests[i].shape;
        item.writes = shape.effect != sql::Effect::None;
        item.outcome = outcomeOf(requests[i], std::move(answers[i]));
        if (item.writes && !shape.isInsert) mAnnouncements.noteUpdate(shape.table, item.outcome->touched);
    }
}

std::vector<std::pair<Announcements::Item*, Session::Request>>
Session::requestsFrom(const Announcements::Item& first) {
    std::vector<std::pair<Announcements::Item*, Request>> ahead;
    bool heldBack = false;
    for (Announcements::Item* item : mAnnouncements.waitingFrom(first)) {
        try {
            Request ready = request(item->statement);
            const bool reads = ready.shape->effect == sql::Effect::None;
            if (ready.shape->effect == sql::Effect::Schema || (reads && heldBack)) break;
            if (!reads && !mTransactions.isOpen()) break;
            const auto sameTable = [&](const auto& other) {
                return other.second.shape->table == ready.shape->table;
            };
            // An Insert beside an Update of its table stands in for it where there is no row yet.
            item->needless =
                ready.shape->isInsert && mAnnouncements.updated(ready.shape->table).value_or(0) > 0;
            if (item->needless) continue;
            if (ready.shape->isInsert && std::any_of(ahead.begin(), ahead.end(), sameTable))
                heldBack = true;
            else
                ahead.emplace_back(item, std::move(ready));
        } catch (const RuntimeError&) {
            break; // it says so when it is run
        }
    }
    return ahead;
}

std::vector<Command> Session::preliminaries() const {
    std::vector<Command> commands;
    for (const std::string& text : mTransactions.unsent())
        commands.push_back({.text = text});
    for (const std::string& name : *mDropped)
        commands.push_back({.text = "Deallocate " + name});
    return commands;
}

// Runs requests in one round trip. When one of them fails, none has had any effect, and a transaction goes
// on.
std::vector<Answer> Session::run(std::span<Request> requests) {
    std::vector<Command> commands = preliminaries();
    const std::size_t begun = commands.size();
    const bool guarded = mTransactions.isOpen();
    if (guarded) commands.push_back({.text = "Savepoint korvane_guard"});
    std::vector<std::size_t> places;
    std::vector<std::pair<std::size_t, Form*>> preparing;
    for (Request& request : requests) {
        Form* form = request.form;
        const auto same = [&](const auto& other) { return other.second == form; };
        if (form && !form->prepared && std::none_of(preparing.begin(), preparing.end(), same)) {
            preparing.emplace_back(commands.size(), form);
            commands.push_back({Command::Prepare, form->name, request.shape->translation.text, form->types});
        }
        places.push_back(commands.size());
        commands.push_back(std::move(request.command));
    }
    if (guarded) commands.push_back({.text = "Release Savepoint korvane_guard"});

    std::vector<Answer> answers = mWire->send(commands);
    mTransactions.sent();
    mDropped->clear();
    const auto failure = std::find_if(answers.begin(), answers.end(), failed);
    const auto done = static_cast<std::size_t>(failure - answers.begin());
    for (const auto& [place, form] : preparing)
        form->prepared = place < done;
    // In a batch of many, one may have had to make room for another.
    for (const Request& request : requests) {
        if (request.form && request.shape->forgotten) request.shape->drop();
    }
    if (failure != answers.end()) {
        const RuntimeError error = engineError(failure->get());
        const std::array<Command, 2> undo{Command{.text = "Rollback To Savepoint korvane_guard"},
                                          Command{.text = "Release Savepoint korvane_guard"}};
        if (guarded && done > begun) mWire->send(undo);
        throw error;
    }
    std::vector<Answer> wanted;
    wanted.reserve(places.size());
    for (const std::size_t place : places)
        wanted.push_back(std::move(answers[place]));
    return wanted;
}

// For what the library asks on its own behalf.
std::vector<Answer> Session::sendAll(std::span<const Command> commands) {
    std::vector<Answer> answers = mWire->send(commands);
    for (const Answer& answer : answers) {
        if (failed(answer)) throw engineError(answer.get());
    }
    return answers;
}

Outcome Session::outcomeOf(const Request& request, Answer answer) {
    Outcome outcome;
    outcome.rows = std::shared_ptr<const pg_result>(answer.release(), ClearResult());
    const pg_result* rows = outcome.rows.get();
    if (request.shape->effect == sql::Effect::Rows)
        outcome.touched = std::atoi(PQcmdTuples(const_cast<pg_result*>(rows)));
    if (request.shape->effect == sql::Effect::Schema) {
        if (mTransactions.isOpen()) mTouched.insert(request.shape->table);
        forgetTable(request.shape->table);
    }
    if (PQnfields(rows) == 0) return outcome;
    if (!request.form) {
        outcome.columns = describe(*request.shape, rows);
        return outcome;
    }
    if (!request.form->columns) request.form->columns = describe(*request.shape, rows);
    outcome.columns = request.form->columns;
    return outcome;
}

std::shared_ptr<const ResultColumns> Session::describe(const Shape& shape, const pg_result* rows) const {
    std::vector<ColumnInfo> columns;
    const auto count = static_cast<std::size_t>(PQnfields(rows));
    const auto& types = shape.translation.resultTypes;
    const auto& names = shape.translation.resultNames;
    for (std::size_t i = 0; i < count; ++i) {
        const int at = static_cast<int>(i);
        const NativeType native = nativeType(PQftype(rows, at), PQfmod(rows, at));
        ColumnInfo column{PQfname(rows, at), native.type, native.size};
        if (i < types.size() && types[i]) column.type = *types[i];
        if (i < names.size() && names[i]) column.name = *names[i];
        columns.push_back(std::move(column));
    }
    return std::make_shared<ResultColumns>(std::move(columns));
}

} // namespace Korvane::ado::postgres
