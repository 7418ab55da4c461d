#pragma once

#include <korvane/data/SQLData.h>

#include <string>
#include <string_view>

namespace Clinic {

/// One row for a table.
///
///     RowInsert row;
///     row.add("PatientID", "P-0001").add("LastName", "O'Brien");
///     row.into(connection, "Patient");
class RowInsert {
  public:
    RowInsert& add(std::string_view column, const Korvane::Variant& value) {
        mLists.InsertListAdd(column, value);
        return *this;
    }

    /// Raises a RuntimeError when it fails.
    void into(Korvane::ado::Connection& connection, std::string_view table) const {
        connection.Execute("Insert Into " + std::string(table) + " " + mLists.InsertListGet());
    }

  private:
    Korvane::SQLData mLists;
};

} // namespace Clinic
