#pragma once

#include "ado/Engine.h"

#include <memory>
#include <string>

namespace Korvane::ado::Testing {

/// Somebody who works at the database in a script.
struct Actor {
    std::shared_ptr<Connection> db;
    std::shared_ptr<Recordset> rs{};
};

/// Lets an actor do what a verb of the scripts says (scripts/Everywhere.txt tells of them all), and gives
/// what comes of it. Raises what the library raises.
std::string perform(Actor& actor, const std::string& verb, const std::string& rest);

/// The next word of a line, which is taken off it; one with blanks stands in brackets.
std::string word(std::string& line);

} // namespace Korvane::ado::Testing
