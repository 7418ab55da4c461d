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

std::string quotedName(std::string_view schema, std::string_view name) {
    return schema.empty() ? quotedName(name) : quotedName(schema) + "." + quotedName(name);
}

} // namespace Korvane::ado::sql
