#include <korvane/data/Tables.h>

#include <korvane/ado/Catalog.h>
#include <korvane/ado/Transaction.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Translation.h>

#include <algorithm>

namespace Korvane {

namespace {

constexpr const char* kTables[] = {"DBFieldGroups", "DBFields",   "DBFieldValues",
                                   "Encounter",     "Attachment", "Provider"};

// Kept to what every engine takes as it stands. Nothing but a key is "not null": other programs write here
// too.
constexpr const char* kStatements[] = {
    "CREATE TABLE IF NOT EXISTS DBFieldGroups ("
    "DBFieldGroupID INTEGER PRIMARY KEY, GroupName VARCHAR(255), TableName VARCHAR(64), Ordinal REAL)",

    "CREATE TABLE IF NOT EXISTS DBFields ("
    "ID INTEGER PRIMARY KEY, Code SMALLINT, FieldName VARCHAR(64), FieldCaption VARCHAR(255), "
    "DBFieldGroupID INTEGER, MaxLength SMALLINT, dataType VARCHAR(32), DisplayType VARCHAR(32), "
    "Indexed SMALLINT, Required SMALLINT, Ordinal REAL, InitialValueRuleID SMALLINT)",

    "CREATE TABLE IF NOT EXISTS DBFieldValues ("
    "FieldValue TEXT, DefaultValue BOOLEAN, FieldName VARCHAR(64), DBFieldGroupID INTEGER, Ordinal REAL)",

    "CREATE TABLE IF NOT EXISTS Encounter ("
    "EncounterID INTEGER PRIMARY KEY, EncounterMethodID INTEGER, PatientID VARCHAR(255), "
    "ProviderID INTEGER, ForeignProviderID INTEGER, LocationID INTEGER, EncounterDate TIMESTAMP, "
    "Outgoing BOOLEAN, Description TEXT, Transport INTEGER)",

    "CREATE TABLE IF NOT EXISTS Attachment ("
    "AttachmentID INTEGER PRIMARY KEY, AttachmentType VARCHAR(255), EncounterID INTEGER, Description TEXT, "
    "Category VARCHAR(255), Archived VARCHAR(255), Deleted BOOLEAN, Origin TEXT, Filename TEXT, "
    "EntryDate TIMESTAMP, OriginDate TIMESTAMP, Orientation VARCHAR(255), Locked BOOLEAN, "
    "InUseBy VARCHAR(255))",

    "CREATE TABLE IF NOT EXISTS Provider ("
    "ProviderID INTEGER PRIMARY KEY, ProviderType VARCHAR(255), FirstName VARCHAR(255), "
    "LastName VARCHAR(255), Suffix VARCHAR(255))",

    "CREATE INDEX IF NOT EXISTS DBFieldsByGroup ON DBFields (DBFieldGroupID, Ordinal)",
    "CREATE INDEX IF NOT EXISTS DBFieldValuesByField ON DBFieldValues (DBFieldGroupID, FieldName)",
    "CREATE INDEX IF NOT EXISTS EncounterByPatient ON Encounter (PatientID, EncounterDate)",
    "CREATE INDEX IF NOT EXISTS AttachmentByEncounter ON Attachment (EncounterID)",

    // Groups up to 1 are never shown: without this row the first group a user makes would be one of them.
    "INSERT INTO DBFieldGroups (DBFieldGroupID, GroupName, TableName, Ordinal) "
    "SELECT 1, 'Reserved', '', 0 WHERE NOT EXISTS (SELECT * FROM DBFieldGroups WHERE DBFieldGroupID >= 1)",
};

bool areThere(ado::Connection& connection) {
    const ado::Tables tables = ado::Catalog(connection.shared_from_this()).Tables();
    return std::ranges::all_of(kTables, [&](const char* table) { return tables.Exists(table); });
}

} // namespace

void installTables(ado::Connection& connection) {
    try {
        ado::Transaction work(connection);
        for (const char* statement : kStatements)
            connection.Execute(statement);
        work.commit();
    } catch (const RuntimeError& error) {
        // Who enters data may create nothing, and nobody has to: what could be missing is an index at most.
        if (error.Number() == RuntimeError::PermissionDenied && areThere(connection)) return;
        throw RuntimeError(error.Number(),
                           filled(translate("Korvane::data", "The tables could not be installed: %1"),
                                  {error.Description()}),
                           error.NativeCode());
    }
}

} // namespace Korvane
