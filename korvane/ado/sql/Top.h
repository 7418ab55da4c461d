#pragma once

#include <korvane/ado/sql/Statement.h>

#include <cstddef>
#include <string_view>
#include <vector>

namespace Korvane::ado::sql {

/// A `Top n` of a Select, for engines that limit a result at its end.
struct TopClause {
    std::size_t first = 0; ///< its tokens: Top ...
    std::size_t last = 0;  ///< ... the number, or the parenthesis behind it
    std::string_view count;
    std::size_t limitAt = 0; ///< the token that a Limit has to stand before
};

/// All of a statement. A Top in a side of a Union is left out: no Limit at the end means the same.
std::vector<TopClause> topClauses(const Statement& statement);

} // namespace Korvane::ado::sql
