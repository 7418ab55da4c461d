#pragma once

#include <korvane/ado/Connection.h>
#include <korvane/runtime/Date.h>

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace Clinic {

/// A person of the clinic.
struct PatientLine {
    QString id;
    QString lastName;
    QString firstName;
    Korvane::Date birthDate; ///< the zero date when it is not known

    /// "García, María"
    QString name() const;
};

/// One line of a patient's list of encounters.
struct EncounterLine {
    qint32 id = -1;
    Korvane::Date date;
    QString description;
    QString provider; ///< "Anna Köhler MD"; empty when the provider is not known
};

/// All patients, by name (accents aside) and identifier. Nothing when they could not be read; the user has
/// then been told.
std::optional<std::vector<PatientLine>>
readPatients(const std::shared_ptr<Korvane::ado::Connection>& connection);

/// The encounters of one patient, newest first. Nothing as above.
std::optional<std::vector<EncounterLine>>
readEncounters(const std::shared_ptr<Korvane::ado::Connection>& connection, const QString& patientID);

} // namespace Clinic
