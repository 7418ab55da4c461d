#include <korvane/ado/sql/Names.h>

namespace Korvane::ado::sql {

std::string quotedName(std::string_view name) {
    std::string quoted = "\"";
    for (const char c : name) {
        quoted += c;
        if (c == '"') quoted += c;
    }
    return quoted + '"';
}

} // namespace Korvane::ado::sql
