#include "clinic/tour/Ledger.h"

#include "shared/Failure.h"

#include <korvane/ado/Recordset.h>
#include <korvane/controls/container/Text.h>

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace Clinic {

using Apps::Failure;
using Apps::require;
using Korvane::qt;
using Korvane::ado::Recordset;

const std::string& StoredRow::at(std::string_view column) const {
    const auto found =
        std::find_if(columns.begin(), columns.end(), [&](const auto& c) { return c.first == column; });
    require(found != columns.end(), QStringLiteral("%1 has no column %2.").arg(qt(table), qt(column)));
    return found->second;
}

Ledger::Ledger(const QString& address) : mConnection(Korvane::ado::open(Korvane::utf8(address))) {
    reload();
}

void Ledger::reload() {
    require(mStructure.LoadStructure(mConnection), QStringLiteral("The Nip's structure cannot be read."));
}

// Each column by its name as the clinic spells it: what a database calls it is up to the engine.
std::vector<StoredRow> Ledger::read(const Source& source, const std::string& condition) {
    std::string list;
    for (const std::string& column : source.columns)
        list += (list.empty() ? "[" : ",[") + column + "]";
    const auto rows = Recordset::create();
    rows->Open("Select " + list + " From " + source.table + condition + " Order By EncounterID", mConnection);
    std::vector<StoredRow> read;
    for (; !rows->Eof(); rows->MoveNext()) {
        StoredRow& row = read.emplace_back(StoredRow{source.table, {}});
        for (std::size_t i = 0; i < source.columns.size(); ++i)
            row.columns.emplace_back(source.columns[i], rows->Value(static_cast<int>(i)).textOrEmpty());
    }
    return read;
}

StoredRow Ledger::readOne(const Source& source, qint32 encounterID) {
    auto rows = read(source, " Where EncounterID=" + std::to_string(encounterID));
    require(rows.size() == 1, QStringLiteral("There are %1 rows in %2 of encounter %3.")
                                  .arg(rows.size())
                                  .arg(qt(source.table))
                                  .arg(encounterID));
    return std::move(rows.front());
}

const Ledger::Source& Ledger::encounters() {
    static const Source source{"Encounter",
                               {"EncounterID", "EncounterMethodID", "PatientID", "ProviderID",
                                "ForeignProviderID", "LocationID", "EncounterDate", "Outgoing", "Description",
                                "Transport"}};
    return source;
}

Ledger::Source Ledger::groupTable(std::int16_t group) const {
    Source source{mStructure.TableName(group, 1), {"EncounterID"}};
    for (std::int16_t f = 1; f <= mStructure.FieldCount(group); ++f)
        source.columns.push_back(mStructure.fieldName(group, f));
    return source;
}

std::vector<StoredRow> Ledger::rowsOf(qint32 encounterID) {
    std::vector<StoredRow> rows{encounterRow(encounterID)};
    for (std::int16_t g = 1; g <= mStructure.GroupCount(); ++g) {
        if (mStructure.FieldCount(g) > 0) rows.push_back(readOne(groupTable(g), encounterID));
    }
    return rows;
}

StoredRow Ledger::encounterRow(qint32 encounterID) {
    return readOne(encounters(), encounterID);
}

StoredRow Ledger::groupRow(qint32 encounterID, std::string_view group) {
    return readOne(groupTable(groupIndex(group)), encounterID);
}

std::vector<StoredRow> Ledger::everyRow() {
    std::vector<StoredRow> rows = read(encounters(), "");
    for (std::int16_t g = 1; g <= mStructure.GroupCount(); ++g) {
        if (mStructure.FieldCount(g) == 0) continue;
        auto more = read(groupTable(g), "");
        rows.insert(rows.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
    }
    return rows;
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

bool Ledger::hasField(std::string_view group, std::string_view field) const {
    return fieldIndex(groupIndex(group), field) > 0;
}

std::int16_t Ledger::fieldIndex(std::int16_t group, std::string_view field) const {
    for (std::int16_t f = 1; f <= mStructure.FieldCount(group); ++f) {
        if (mStructure.fieldName(group, f) == field) return f;
    }
    return 0;
}

Ledger::Place Ledger::placeOf(std::string_view group, std::string_view field) const {
    const std::int16_t g = groupIndex(group);
    const std::int16_t f = fieldIndex(g, field);
    require(f > 0, QStringLiteral("The group %1 has no field %2.").arg(qt(group), qt(field)));
    Place place{g, f, mStructure.displayType(g, f), mStructure.Caption(g, f), {}};
    for (std::int16_t i = 1; i <= mStructure.ValueListCount(g, f); ++i)
        place.choices.push_back(mStructure.ValueList(g, f).array().at(i).textOrEmpty());
    return place;
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
