#include <korvane/ado/postgres/Settings.h>

#include <korvane/ado/postgres/Error.h>

#include <libpq-fe.h>

#include <algorithm>
#include <array>

namespace Korvane::ado::postgres {

namespace {

// The server tells its client whenever one of these changes.
constexpr std::array reported{"client_encoding", "DateStyle", "standard_conforming_strings"};
constexpr const char* timeout = "statement_timeout";

template <typename Values>
Command setting(const Values& values) {
    Command command;
    for (const auto& [name, value] : values) {
        command.text += command.text.empty() ? "Select " : ", ";
        command.values.emplace_back(name);
        command.text += "pg_catalog.set_config($" + std::to_string(command.values.size());
        command.values.emplace_back(value);
        command.text += ", $" + std::to_string(command.values.size()) + ", false)";
    }
    return command;
}

template <typename Values>
Command asking(const Values& values) {
    Command command;
    for (const auto& [name, value] : values) {
        command.text += command.text.empty() ? "Select " : ", ";
        command.values.emplace_back(name);
        command.text += "pg_catalog.current_setting($" + std::to_string(command.values.size()) + ")";
    }
    return command;
}

} // namespace

Answer Settings::make(Command further) {
    mFormer.clear();
    mWanted = {
        {reported[0], "UTF8"}, {reported[1], "ISO, MDY"}, {reported[2], "on"}, {"extra_float_digits", "3"}};
    const auto limit = mWire.limits().statement.count();
    if (!mWire.isLent() || limit > 0) mWanted.emplace_back(timeout, std::to_string(limit));
    mMayBeUndone = mWire.transaction() != Wire::Transaction::None;
    const Values names = unremembered();
    std::vector<Command> commands;
    if (!names.empty()) commands.push_back(asking(names));
    commands.push_back(setting(mWanted));
    commands.push_back(std::move(further));
    std::vector<Answer> answers = send(std::move(commands));
    if (!names.empty()) remember(names, answers.front());
    return std::move(answers.back());
}

void Settings::renew(std::vector<Command>& commands, bool inTransaction) {
    if (!mMayBeUndone && hold()) return;
    commands.push_back(setting(mWanted));
    mMayBeUndone = inTransaction;
}

void Settings::limit(std::chrono::milliseconds statement) {
    std::erase_if(mWanted, [](const auto& setting) { return setting.first == timeout; });
    mWanted.emplace_back(timeout, std::to_string(statement.count()));
    if (!mWire.isUp()) return; // made when it is up again
    mMayBeUndone = mMayBeUndone || mWire.transaction() != Wire::Transaction::None;
    const Values names = unremembered();
    std::vector<Command> commands;
    if (!names.empty()) commands.push_back(asking(names));
    commands.push_back(setting(mWanted));
    const std::vector<Answer> answers = send(std::move(commands));
    if (!names.empty()) remember(names, answers.front());
}

void Settings::restore() {
    if (mWire.isLent() && mWire.isUp() && !mFormer.empty()) send({setting(mFormer)});
}

bool Settings::hold() const {
    return std::all_of(mWanted.begin(), mWanted.begin() + reported.size(),
                       [&](const auto& setting) { return mWire.has(setting.first.c_str(), setting.second); });
}

Settings::Values Settings::unremembered() const {
    Values names;
    if (!mWire.isLent()) return names;
    for (const auto& wanted : mWanted) {
        const auto same = [&](const auto& former) { return former.first == wanted.first; };
        if (std::none_of(mFormer.begin(), mFormer.end(), same)) names.push_back(wanted);
    }
    return names;
}

void Settings::remember(const Values& names, const Answer& values) {
    for (std::size_t i = 0; i < names.size(); ++i)
        mFormer.emplace_back(names[i].first, PQgetvalue(values.get(), 0, static_cast<int>(i)));
}

std::vector<Answer> Settings::send(std::vector<Command> commands) const {
    std::vector<Answer> answers = mWire.send(commands);
    for (const Answer& answer : answers) {
        if (PQresultStatus(answer.get()) == PGRES_FATAL_ERROR) throw engineError(answer.get());
    }
    return answers;
}

} // namespace Korvane::ado::postgres
