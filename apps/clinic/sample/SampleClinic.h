#pragma once

#include <korvane/ado/Connection.h>

namespace Clinic {

/// Whether the clinic's tables are in the database.
bool isInstalled(Korvane::ado::Connection& connection);

/// Creates the library's tables and the clinic's own where they are missing:
///
///     Patient (PatientID, LastName, FirstName, BirthDate, Sex, Phone, Email)
///
/// `PatientID` is text ("P-0001") and the key, `BirthDate` a date, `Sex` "Female" or "Male"; phone and e-mail
/// may be null. All or nothing: raises a RuntimeError and changes nothing on failure.
void installTables(Korvane::ado::Connection& connection);

/// Makes the sample clinic in a database that does not hold one yet: the tables, a Nip made of published
/// forms, providers, patients, and three years of encounters with their Nips. The same on every machine at
/// any time. All or nothing: raises a RuntimeError and changes nothing on failure.
///
///     auto db = Korvane::ado::open("sqlite:clinic.db");
///     if (!Clinic::isInstalled(*db)) Clinic::installSample(*db);
void installSample(Korvane::ado::Connection& connection);

} // namespace Clinic
