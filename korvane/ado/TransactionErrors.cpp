#include <korvane/ado/TransactionErrors.h>

#include <korvane/runtime/Translation.h>

namespace Korvane::ado {

RuntimeError nothingToCommit() {
    return {RuntimeError::DatabaseFailure,
            Korvane::translate("Korvane::ado", "There is no transaction to commit.")};
}

RuntimeError nothingToRollBack() {
    return {RuntimeError::DatabaseFailure,
            Korvane::translate("Korvane::ado", "There is no transaction to roll back.")};
}

RuntimeError transactionOver() {
    return {RuntimeError::DatabaseFailure,
            Korvane::translate(
                "Korvane::ado",
                "The transaction is over: the database has rolled it back after a failure, or somebody has "
                "ended it past this connection. What was written in it was saved only if it was committed "
                "there.")};
}

} // namespace Korvane::ado
