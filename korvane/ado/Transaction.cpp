#include <korvane/ado/Transaction.h>

#include <korvane/runtime/RuntimeError.h>

namespace Korvane::ado {

Transaction::Transaction(Connection& connection, TransactionFor use) : mConnection(connection) {
    mConnection.BeginTrans(use);
    mOpen = true;
}

Transaction::~Transaction() {
    if (!mOpen) return;
    try {
        mConnection.RollbackTrans();
    } catch (const RuntimeError&) {
        // Nobody is left to tell; the failure that led here is on its way already.
    }
}

void Transaction::commit() {
    mConnection.CommitTrans();
    mOpen = false;
}

} // namespace Korvane::ado
