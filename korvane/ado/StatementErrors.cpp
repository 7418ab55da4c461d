#include <korvane/ado/StatementErrors.h>

#include <korvane/runtime/Translation.h>

namespace Korvane::ado {

RuntimeError noStatement() {
    return {RuntimeError::InvalidArgument,
            Korvane::translate("Korvane::ado", "There is no statement to run.")};
}

RuntimeError severalStatements() {
    return {RuntimeError::InvalidArgument,
            Korvane::translate("Korvane::ado", "Only one statement can be run at a time.")};
}

RuntimeError parameterMark() {
    return {RuntimeError::InvalidArgument,
            Korvane::translate(
                "Korvane::ado",
                "The statement holds a parameter mark; values are written into the statement itself.")};
}

} // namespace Korvane::ado
