#pragma once

#include "clinic/sample/Batch.h"

#include <korvane/data/SQLData.h>

#include <string>
#include <string_view>

namespace Clinic {

/// One row for a table.
///
///     RowInsert row;
///     row.add("PatientID", "P-0001").add("LastName", "O'Brien");
///     row.into(batch, "Patient");
class RowInsert {
  public:
    RowInsert& add(std::string_view column, const Korvane::Variant& value) {
        mLists.InsertListAdd(column, value);
        return *this;
    }

    /// Raises a RuntimeError when it, or what the batch holds already, fails.
    void into(Batch& batch, std::string_view table) const {
        batch.add("Insert Into " + std::string(table) + " " + mLists.InsertListGet());
    }

  private:
    Korvane::SQLData mLists;
};

} // namespace Clinic
