#include <korvane/nip/cNIP.h>

#include <korvane/ado/Catalog.h>
#include <korvane/data/ErrLog.h>
#include <korvane/nip/Query.h>
#include <korvane/nip/Revision.h>
#include <korvane/runtime/HeldMessages.h>
#include <korvane/runtime/Translation.h>

#include <utility>

namespace Korvane {

/// Runs the body of an operation; what it raises is kept as `LastError` and written to the error log.
bool cNIP::attempt(std::string_view prefix, const std::function<bool()>& body) {
    return guarded(prefix, false, [&] {
        try {
            return body();
        } catch (...) {
            mLastError = currentError();
            throw;
        }
    });
}

/// The same in a transaction; the model is not to be changed before that is committed.
bool cNIP::changeSchema(std::string_view prefix, const std::function<bool()>& change) {
    return attempt(prefix, [&] {
        if (!mStructureLoaded)
            throw RuntimeError(RuntimeError::InvalidProcedureCall,
                               translate("Korvane::nip", "The structure is not loaded"));
        return withCurrentSchema([&] {
            const HeldMessages messages;
            ado::Transaction work(*mConnection, ado::TransactionFor::ChangingSchema);
            requireCurrentRevision();
            if (!change()) return false;
            execute(nextRevisionStatement);
            std::string revision = readCell(revisionStatement);
            work.commit();
            mRevision = std::move(revision);
            mSchemaMark.clear(); // whoever needs it before the structure is loaded anew looks at that again
            return true;
        });
    });
}

GroupRecord& cNIP::existingGroup(std::int16_t group) {
    if (group < 1 || group > GroupCount()) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
    return mGroups[static_cast<std::size_t>(group)];
}

FieldRecord& cNIP::existingField(std::int16_t group, std::int16_t field) {
    GroupRecord& record = existingGroup(group);
    if (field < 1 || field > record.fieldCount) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
    return record.fields[static_cast<std::size_t>(field)];
}

ado::Catalog& cNIP::catalog() {
    if (!mCatalog || mCatalog->ActiveConnection() != mConnection)
        mCatalog = std::make_unique<ado::Catalog>(mConnection);
    return *mCatalog;
}

std::int32_t cNIP::nextID(const std::string& statement) {
    SQLData query;
    Korvane::run(query, mConnection, statement);
    const double maximum = query.Data("MaxID").toDouble(); // 0 when there is no row
    raiseFailure(query);
    return Variant(maximum + 1).toInt32();
}

void cNIP::execute(std::string_view statement) {
    SQLData query;
    Korvane::run(query, mConnection, statement, true);
}

void cNIP::execute(const std::vector<std::string>& statements) {
    mConnection->Announce(statements);
    for (const std::string& statement : statements)
        execute(statement);
}

} // namespace Korvane
