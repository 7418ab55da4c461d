#include "clinic/Records.h"

#include "clinic/Fold.h"

#include <korvane/controls/container/Text.h>
#include <korvane/data/SQLData.h>
#include <korvane/runtime/Text.h>

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace Clinic {

using Korvane::SQLData;
using Korvane::utf8;
using Connection = std::shared_ptr<Korvane::ado::Connection>;

namespace {

QString text(SQLData& query, const char* column) {
    return Korvane::qt(query.Data(column).textOrEmpty());
}

/// The zero date for what is no date.
Korvane::Date date(SQLData& query, const char* column) {
    const Korvane::Variant value = query.Data(column);
    if (value.isText()) return Korvane::parseDate(value.asText()).value_or(Korvane::Date());
    return value.toDate();
}

using ProviderNames = QHash<qint32, QString>;

std::optional<ProviderNames> readProviders(const Connection& connection) {
    SQLData query;
    if (!query.SQL(connection, "Select ProviderID,FirstName,LastName,Suffix From Provider", false,
                   Korvane::AccessMode::Read))
        return std::nullopt;
    ProviderNames names;
    for (; !query.Eof(); query.NextRow()) {
        QStringList parts{text(query, "FirstName"), text(query, "LastName"), text(query, "Suffix")};
        parts.removeAll(QString());
        names.insert(query.Data("ProviderID").toInt32(), parts.join(QLatin1Char(' ')));
    }
    return names;
}

} // namespace

QString PatientLine::name() const {
    if (firstName.isEmpty() || lastName.isEmpty()) return lastName + firstName;
    return lastName + QStringLiteral(", ") + firstName;
}

std::optional<std::vector<PatientLine>> readPatients(const Connection& connection) {
    SQLData query;
    if (!query.SQL(connection, "Select PatientID,LastName,FirstName,BirthDate From Patient", false,
                   Korvane::AccessMode::Read))
        return std::nullopt;
    // Sorted here rather than in the statement: a database puts "Åkesson" behind "Zimmer".
    std::vector<std::pair<QString, PatientLine>> keyed;
    for (; !query.Eof(); query.NextRow()) {
        PatientLine patient{text(query, "PatientID"), text(query, "LastName"), text(query, "FirstName"),
                            date(query, "BirthDate")};
        const QString key =
            QStringList{fold(patient.lastName), fold(patient.firstName), patient.id}.join(u'\n');
        keyed.emplace_back(key, std::move(patient));
    }
    std::sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<PatientLine> patients;
    patients.reserve(keyed.size());
    for (auto& [key, patient] : keyed)
        patients.push_back(std::move(patient));
    return patients;
}

std::optional<std::vector<EncounterLine>> readEncounters(const Connection& connection,
                                                         const QString& patientID) {
    const auto providers = readProviders(connection);
    SQLData query;
    if (!providers || !query.SQL(connection,
                                 "Select EncounterID,EncounterDate,Description,ProviderID From Encounter "
                                 "Where PatientID='" +
                                     Korvane::escapeQuotes(utf8(patientID)) +
                                     "' Order By EncounterDate DESC,EncounterID DESC",
                                 false, Korvane::AccessMode::Read))
        return std::nullopt;
    std::vector<EncounterLine> lines;
    for (; !query.Eof(); query.NextRow())
        lines.push_back({query.Data("EncounterID").toInt32(), date(query, "EncounterDate"),
                         text(query, "Description"), providers->value(query.Data("ProviderID").toInt32())});
    return lines;
}

} // namespace Clinic
