#include "fuzz/Properties.h"

#include <korvane/ado/sql/Lift.h>
#include <korvane/runtime/RuntimeError.h>

#include "support/Translating.h"

#include <array>
#include <ctime>

namespace Korvane::Fuzz {

namespace {

using Testing::Translating;

std::string statementOf(std::string_view text, std::size_t length) {
    std::array<std::string_view, 3> lines;
    for (std::string_view& line : lines) {
        line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    const auto& [head, repeated, tail] = lines;
    std::string statement(head);
    while (!repeated.empty() && statement.size() < length)
        statement += repeated;
    return statement + std::string(tail);
}

double secondsFor(const std::string& statement) {
    const std::clock_t begin = std::clock();
    ado::sql::Lifter lifter;
    lifter.lift(statement);
    for (const Translating& engine : Testing::translations()) {
        for (const std::string_view text : {std::string_view(statement), lifter.shape()}) {
            try {
                engine.translate(text, engine.tables(), {});
            } catch (const RuntimeError&) {
                // A value that does not suit its column; the time counts all the same.
            }
        }
    }
    ado::sql::rowSource(statement);
    return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

} // namespace

void growsEvenly(std::string_view text, std::size_t length) {
    constexpr double noise = 0.1;
    const double part = secondsFor(statementOf(text, length / 16));
    const double whole = secondsFor(statementOf(text, length));
    require(whole <= 64 * part + noise, "The time grows with the square of the length", text);
}

void growing(std::string_view text) {
    growsEvenly(text, 128 * 1024);
}

} // namespace Korvane::Fuzz
