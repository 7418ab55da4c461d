#include "clinic/sample/SampleClinic.h"

#include <korvane/ado/Recordset.h>
#include <korvane/ado/Transaction.h>
#include <korvane/data/Tables.h>
#include <korvane/runtime/RuntimeError.h>

namespace Clinic {

using Korvane::ado::Connection;

// No catalog is asked: whatever else keeps the table from being read, the installation that follows names it.
bool isInstalled(Connection& connection) {
    try {
        Korvane::ado::Recordset::create()->Open("Select Top 1 PatientID From Patient",
                                                connection.shared_from_this());
        return true;
    } catch (const Korvane::RuntimeError&) {
        return false;
    }
}

void installTables(Connection& connection) {
    Korvane::ado::Transaction work(connection);
    Korvane::installTables(connection);
    connection.Execute(
        "Create Table If Not Exists Patient ([PatientID] VARCHAR(20) NOT NULL PRIMARY KEY,"
        "[LastName] VARCHAR(100) NOT NULL,[FirstName] VARCHAR(100) NOT NULL,[BirthDate] TIMESTAMP,"
        "[Sex] VARCHAR(10),[Phone] VARCHAR(30),[Email] VARCHAR(100))");
    work.commit();
}

} // namespace Clinic
