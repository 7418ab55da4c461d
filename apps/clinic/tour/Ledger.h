#pragma once

#include <korvane/ado/Connection.h>
#include <korvane/nip/cNIP.h>

#include <QString>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Clinic {

/// A row as the database holds it: its columns as the Nip orders and spells them, each value as text, null as
/// empty text.
struct StoredRow {
    std::string table;
    std::vector<std::pair<std::string, std::string>> columns;

    /// Fails when there is no such column.
    const std::string& at(std::string_view column) const;

    bool operator==(const StoredRow&) const = default;
};

/// Reads what a database holds for an encounter, past the window and its connection.
class Ledger {
  public:
    explicit Ledger(const QString& address);

    /// Goes on with the structure as it is stored now.
    void reload();

    /// The encounter's own row, then each group's. Fails when one of them is missing or there are two.
    std::vector<StoredRow> rowsOf(qint32 encounterID);

    StoredRow encounterRow(qint32 encounterID);

    /// The row of one group, by the group's name.
    StoredRow groupRow(qint32 encounterID, std::string_view group);

    /// All encounters, then all rows of each group, in the order of their identifiers.
    std::vector<StoredRow> everyRow();

    qint32 encounterCount();
    /// The greatest identifier.
    qint32 newestEncounter();

    /// Where a field stands in the structure. Fails when there is none.
    struct Place {
        std::int16_t group = 0, field = 0;
        std::string displayType, caption;
        std::vector<std::string> choices;
    };
    Place placeOf(std::string_view group, std::string_view field) const;
    bool hasField(std::string_view group, std::string_view field) const;

  private:
    std::int16_t groupIndex(std::string_view group) const;
    /// 0: there is none.
    std::int16_t fieldIndex(std::int16_t group, std::string_view field) const;
    qint32 number(const std::string& expression);
    /// A table of the Nip and its columns, `EncounterID` first.
    struct Source {
        std::string table;
        std::vector<std::string> columns;
    };
    static const Source& encounters();
    Source groupTable(std::int16_t group) const;
    std::vector<StoredRow> read(const Source& source, const std::string& condition);
    StoredRow readOne(const Source& source, qint32 encounterID);

    std::shared_ptr<Korvane::ado::Connection> mConnection;
    Korvane::cNIP mStructure;
};

/// Prints rows to standard output, columns without a value left out.
void print(const std::vector<StoredRow>& rows);

} // namespace Clinic
