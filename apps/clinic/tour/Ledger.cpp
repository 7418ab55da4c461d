#include "clinic/tour/Ledger.h"

#include "clinic/tour/Failure.h"

#include <korvane/ado/Recordset.h>
#include <korvane/controls/container/Text.h>

#include <algorithm>
#include <cstdio>

namespace Clinic {

using Korvane::qt;
using Korvane::ado::Recordset;

const std::string& StoredRow::at(std::string_view column) const {
    const auto found =
        std::find_if(columns.begin(), columns.end(), [&](const auto& c) { return c.first == column; });
    require(found != columns.end(), QStringLiteral("%1 has no column %2.").arg(qt(table), qt(column)));
    return found->second;
}

Ledger::Ledger(const QString& address) : mConnection(Korvane::ado::open(Korvane::utf8(address))) {
    require(mStructure.LoadStructure(mConnection), QStringLiteral("The Nip's structure cannot be read."));
}

// Each column by its name as the clinic spells it: what a database calls it is up to the engine.
StoredRow Ledger::read(const std::string& table, const std::vector<std::string>& columns,
                       qint32 encounterID) {
    std::string list;
    for (const std::string& column : columns)
        list += (list.empty() ? "[" : ",[") + column + "]";
    const auto rows = Recordset::create();
    rows->Open("Select " + list + " From " + table + " Where EncounterID=" + std::to_string(encounterID),
               mConnection);
    const QString where = QStringLiteral("%1 of encounter %2").arg(qt(table)).arg(encounterID);
    require(!rows->Eof(), QStringLiteral("There is no row in ") + where);
    StoredRow row{table, {}};
    for (std::size_t i = 0; i < columns.size(); ++i)
        row.columns.emplace_back(columns[i], rows->Value(static_cast<int>(i)).textOrEmpty());
    rows->MoveNext();
    require(rows->Eof(), QStringLiteral("There is more than one row in ") + where);
    return row;
}

std::vector<StoredRow> Ledger::rowsOf(qint32 encounterID) {
    std::vector<StoredRow> rows{
        read("Encounter",
             {"EncounterID", "EncounterMethodID", "PatientID", "ProviderID", "ForeignProviderID",
              "LocationID", "EncounterDate", "Outgoing", "Description", "Transport"},
             encounterID)};
    for (std::int16_t g = 1; g <= mStructure.GroupCount(); ++g) {
        if (mStructure.FieldCount(g) > 0) rows.push_back(groupRow(encounterID, g));
    }
    return rows;
}

StoredRow Ledger::groupRow(qint32 encounterID, std::string_view group) {
    return groupRow(encounterID, groupIndex(group));
}

StoredRow Ledger::groupRow(qint32 encounterID, std::int16_t group) {
    std::vector<std::string> columns{"EncounterID"};
    for (std::int16_t f = 1; f <= mStructure.FieldCount(group); ++f)
        columns.push_back(mStructure.fieldName(group, f));
    return read(mStructure.TableName(group, 1), columns, encounterID);
}

qint32 Ledger::number(const std::string& expression) {
    const auto rows = Recordset::create();
    rows->Open("Select " + expression + " As Number From Encounter", mConnection);
    return rows->Value("Number").toInt32();
}

qint32 Ledger::encounterCount() {
    return number("Count(*)");
}

qint32 Ledger::newestEncounter() {
    return number("Max(EncounterID)");
}

std::int16_t Ledger::groupIndex(std::string_view group) const {
    for (std::int16_t g = 1; g <= mStructure.GroupCount(); ++g) {
        if (mStructure.GroupName(g) == group) return g;
    }
    throw Failure(QStringLiteral("The Nip has no group %1.").arg(qt(group)));
}

Ledger::Place Ledger::placeOf(std::string_view group, std::string_view field) const {
    const std::int16_t g = groupIndex(group);
    for (std::int16_t f = 1; f <= mStructure.FieldCount(g); ++f) {
        if (mStructure.fieldName(g, f) == field) return {g, f, mStructure.displayType(g, f)};
    }
    throw Failure(QStringLiteral("The group %1 has no field %2.").arg(qt(group), qt(field)));
}

void print(const std::vector<StoredRow>& rows) {
    for (const StoredRow& row : rows) {
        std::printf("%s\n", row.table.c_str());
        for (const auto& [column, value] : row.columns) {
            if (!value.empty()) std::printf("    %-28s %s\n", column.c_str(), value.c_str());
        }
    }
}

} // namespace Clinic
