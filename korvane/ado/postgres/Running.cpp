// How a session runs statements: alone, or together with others that were announced.

#include <korvane/ado/StatementErrors.h>
#include <korvane/ado/postgres/Session.h>

#include <korvane/ado/postgres/ChangedTable.h>
#include <korvane/ado/postgres/Error.h>
#include <korvane/ado/postgres/Translate.h>
#include <korvane/ado/postgres/Values.h>
#include <korvane/ado/sql/Statement.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

#include <libpq-fe.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>

namespace Korvane::ado::postgres {

namespace {

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
    if (tokens.front().kind == sql::TokenKind::End) throw noStatement();
    if (tokens.front().isWord("copy"))
        throw RuntimeError(RuntimeError::InvalidArgument,
                           Korvane::translate("Korvane::ado", "Copy cannot be run over this connection."));
    for (std::size_t at = 0; at + 1 < tokens.size(); ++at) {
        if (!tokens[at].isSymbol(';')) continue;
        const sql::Token& behind = tokens[at + 1];
        if (behind.kind != sql::TokenKind::End && !behind.isSymbol(';')) throw severalStatements();
    }
}

constexpr std::array committing{"commit", "end", "prepare"};
constexpr std::array otherwiseControlling{"begin", "start", "rollback", "savepoint", "release", "abort"};

template <typename Words>
bool beginsWithOneOf(const Words& words, const sql::Statement& statement) {
    const sql::Token& first = statement.tokens.front();
    return std::any_of(words.begin(), words.end(), [&](const char* word) { return first.isWord(word); });
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
    requireTables(statement);
    auto shape = std::make_shared<Shape>();
    shape->text = text;
    shape->translation = translate(text, mSchema, addedColumns);
    shape->effect = sql::effectOf(text);
    shape->dropped = mDropped;
    if (shape->effect == sql::Effect::Schema) shape->table = changedTable(text);
    shape->isInsert = statement.tokens.front().isWord("insert");
    const bool namesTable = shape->isInsert || statement.tokens.front().isWord("update");
    if (namesTable && !statement.scopes.empty() && !statement.scopes.front().sources.empty()) {
        const sql::Source& source = statement.scopes.front().sources.front();
        shape->table = lowerCase(source.schema + "." + source.table);
        addTypeCheck(shape->translation, source);
    }
    shape->commits = beginsWithOneOf(committing, statement);
    shape->controlsTransaction = shape->commits || beginsWithOneOf(otherwiseControlling, statement);
    return shape;
}

// What is written into a table decides on the form of values: one that is not known may have been made since
// the catalog was read.
void Session::requireTables(const sql::Statement& statement) {
    const bool knewSchema = mSchema.isRead();
    for (const sql::Scope& scope : statement.scopes) {
        for (const sql::Source& source : scope.sources)
            mSchema.include(source.schema);
    }
    requireSchema();
    if (!knewSchema || statement.scopes.empty()) return;
    const sql::Scope& outermost = statement.scopes.front();
    if (outermost.isSelect || outermost.sources.empty()) return;
    const sql::Source& written = outermost.sources.front();
    if (written.table.empty() || !mSchema.nameOf(written.name()).empty()) return;
    mSchema.forget(written.table);
    requireSchema();
}

// Another program may have changed the type of a column since the catalog was read, and the server would turn
// the values, made for the old one, into something else. Instead the statement fails, is translated anew, and
// then stores what was written or refuses it.
void Session::addTypeCheck(sql::Translation& translation, const sql::Source& written) const {
    const std::string check = mSchema.typeCheck(written.name(), translation.storedColumns);
    if (!check.empty()) translation.text.insert(0, "With " + check + " ");
}

Form& Session::formFor(Shape& shape, std::vector<TypeId> types) {
    for (Form& form : shape.forms) {
        if (form.types == types) return form;
    }
    return shape.forms.emplace_back(Form{std::move(types), newName(), false, nullptr});
}

Request Session::request(std::string_view statement) {
    mLifter.lift(statement);
    Request request;
    request.shape = mShapes.find(mLifter.shape());
    if (!request.shape) {
        request.shape = makeShape(mLifter.shape(), {});
        if (request.shape->effect != sql::Effect::Schema) mShapes.keep(request.shape);
    }
    const auto& rules = request.shape->translation.parameters;
    const auto& literals = mLifter.literals();
    // The server takes no more with one statement.
    constexpr std::size_t mostParameters = 65535;
    if (literals.size() > mostParameters) return literalRequest(statement, {});
    if (rules.size() != literals.size()) throw parameterMark();
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

Request Session::literalRequest(std::string_view statement, std::string_view addedColumns) {
    Request request;
    request.shape = makeShape(statement, addedColumns);
    if (!request.shape->translation.parameters.empty()) throw parameterMark();
    request.command.text = request.shape->translation.text;
    return request;
}

Outcome Session::perform(std::string_view statement) {
    if (auto outcome = takeAnnounced(statement)) return std::move(*outcome);
    settle();
    if (sql::effectOf(statement) != sql::Effect::None) mAnnouncements.dropReads();
    const bool knewSchema = mSchema.isRead();
    bool nothingPrepared = false;
    try {
        return run(request(statement));
    } catch (const RuntimeError& error) {
        const bool isOurs = error.NativeCode() == 0;
        if (State() == 0 || !mayDoBetterAsText(error) || (isOurs && !knewSchema)) throw;
        nothingPrepared = sqlState(error.NativeCode()) == "26000";
    }
    forgetSchema();
    // The owner of a lent handle may have discarded what was prepared on it.
    if (nothingPrepared) mDropped->clear();
    return run(literalRequest(statement, {}));
}

std::optional<Outcome> Session::takeAnnounced(std::string_view statement) {
    Announcements::Item* item = mAnnouncements.find(statement);
    const auto receive = [&] {
        while (mAhead && item && !item->outcome) {
            receiveAhead();
            item = mAnnouncements.find(statement);
        }
    };
    receive();
    if (item && !item->outcome) {
        sendAnnounced(*item);
        item = mAnnouncements.find(statement);
        receive();
    }
    if (!item) return std::nullopt;
    item->taken = true;
    return std::exchange(item->outcome, std::nullopt);
}

// Sends what was announced, as far as it may go ahead.
void Session::sendAnnounced(const Announcements::Item& first) {
    auto ahead = requestsFrom(first);
    if (ahead.size() < 2) return;
    std::vector<Announcements::Item*> items;
    std::vector<Request> requests;
    for (auto& [item, request] : ahead) {
        item->writes = request.shape->effect != sql::Effect::None;
        items.push_back(item);
        requests.push_back(std::move(request));
    }
    const bool later = mayBeReadLater(requests);
    // Many answers fill what the server sends at a time by themselves.
    constexpr std::size_t few = 8;
    for (Request& request : requests)
        request.command.atOnce = later && requests.size() < few;
    mAhead.emplace(Ahead{std::move(items), send(std::move(requests))});
    while (mAhead && !later)
        receiveAhead();
}

// Answers may be read one by one, as they are asked for, while the server is at work on the others, where it
// does no harm that one is known before another has failed. The owner of a lent handle may use it meanwhile.
bool Session::mayBeReadLater(const std::vector<Request>& requests) const {
    return !mWire->isLent() && mTransactions.isReading() &&
           std::all_of(requests.begin(), requests.end(),
                       [](const Request& request) { return request.shape->effect == sql::Effect::None; });
}

// Waits for the next answer of what was sent ahead. When one of the statements failed, all is as if none had
// been sent: those not yet answered are run one by one, as they are asked for, and the one that fails says
// so.
void Session::receiveAhead() {
    try {
        Batch& batch = mAhead->batch;
        Announcements::Item& item = *mAhead->items[batch.answered()];
        const Request& request = batch.requests()[batch.answered()];
        item.outcome = outcomeOf(request, batch.next());
        if (item.writes && !request.shape->isInsert)
            mAnnouncements.noteUpdate(request.shape->table, item.outcome->touched);
        if (batch.isOver()) mAhead.reset();
    } catch (const RuntimeError& error) {
        mAhead.reset();
        mAnnouncements.clear();
        if (State() == 0 || endsTheBatch(error)) throw;
    }
}

// What is on its way has to arrive before the line is used for anything else.
void Session::settle() {
    try {
        while (mAhead)
            receiveAhead();
    } catch (const RuntimeError&) {
        // Whoever uses the line next, or asks for one of the statements, gets to know.
    }
}

std::vector<std::pair<Announcements::Item*, Request>>
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

std::vector<Command> Session::preliminaries(bool plansOnce) {
    std::vector<Command> commands;
    mSettings.renew(commands, mTransactions.isOpen());
    for (const std::string& text : mTransactions.unsent())
        commands.push_back({.text = text});
    // The server would plan the first five of a shape anew; what is announced is found by its key. It ends
    // with the transaction.
    if (plansOnce && mPlansAsNeeded && mTransactions.begins())
        commands.push_back({.text = "Set Local plan_cache_mode To force_generic_plan"});
    return commands;
}

// Sends requests in one round trip. What is prepared no longer is given up beside statements that are tried
// again when the server turns out to have forgotten it already, and never where that would end a transaction.
Batch Session::send(std::vector<Request> requests) {
    std::vector<Command> before = preliminaries(requests.size() > 1);
    const Request& first = requests.front();
    const bool guarded = mTransactions.isOpen() && !(first.shape && first.shape->controlsTransaction);
    std::vector<Command> givenUp;
    if (first.form) {
        for (const std::string& name : *mDropped)
            givenUp.push_back({.text = "Deallocate " + name});
        mDropped->clear();
    }
    Batch batch(*mWire, guarded, std::move(before), std::move(givenUp), std::move(requests));
    mTransactions.sent();
    return batch;
}

Batch Session::sendAlone(Request request) {
    settle();
    std::vector<Request> alone;
    alone.push_back(std::move(request));
    return send(std::move(alone));
}

Outcome Session::run(Request request) {
    Batch batch = sendAlone(std::move(request));
    return outcomeOf(batch.requests().front(), batch.next());
}

// For what the library asks on its own behalf.
std::vector<Answer> Session::sendAll(std::span<const Command> commands) {
    std::vector<Command> all;
    mSettings.renew(all, mTransactions.isOpen());
    const std::size_t before = all.size();
    all.insert(all.end(), commands.begin(), commands.end());
    std::vector<Answer> answers = mWire->send(all);
    for (const Answer& answer : answers) {
        if (failed(answer)) throw engineError(answer.get());
    }
    answers.erase(answers.begin(), answers.begin() + static_cast<std::ptrdiff_t>(before));
    return answers;
}

Outcome Session::outcomeOf(const Request& request, Answer answer) {
    Outcome outcome;
    outcome.rows = std::shared_ptr<const pg_result>(answer.release(), ClearResult());
    const pg_result* rows = outcome.rows.get();
    if (request.shape->commits) Transactions::requireCommitted(rows);
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
        // The server has the last word where the catalog has grown old.
        if (i < types.size() && types[i] && sql::isTextType(*types[i]) == sql::isTextType(column.type) &&
            (*types[i] == DataType::Date) == (column.type == DataType::Date))
            column.type = *types[i];
        if (i < names.size() && names[i]) column.name = *names[i];
        columns.push_back(std::move(column));
    }
    return std::make_shared<ResultColumns>(std::move(columns));
}

} // namespace Korvane::ado::postgres
