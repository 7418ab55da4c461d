#pragma once

#include <korvane/ado/Connection.h>
#include <korvane/runtime/Variant.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace Korvane {

/// To whom a stored row belonged when a record last read or wrote it. Numbers are given away again when the
/// highest row is deleted, so that a number alone may lead to somebody else's row.
///
///     RowOwner owner("PatientID");
///     owner.is("P-0042");
///     owner.claim(db, "Encounter", " Where EncounterID=12");
class RowOwner {
  public:
    explicit RowOwner(std::string_view column) : mColumn(column) {}

    std::string_view column() const { return mColumn; }
    /// Null is an owner, too: the row that has none.
    void is(const Variant& value) { mValue = value; }
    /// From here on no row is this one's.
    void forget() { mValue.reset(); }

    /// In a transaction: whether the row that `where` finds is there and still this owner's. From then on to
    /// the end of the transaction nobody else changes or deletes it. Nothing when that could not be found
    /// out, which has been reported to the user.
    std::optional<bool> claim(const std::shared_ptr<ado::Connection>& connection, std::string_view table,
                              std::string_view where) const;

  private:
    std::string_view mColumn;
    std::optional<Variant> mValue;
};

/// Runs `work` in a transaction of its own, or in the one that is open. Its result, having committed; false
/// when it was false, and nothing is changed then. A transaction that fails is reported to the user.
bool together(const std::shared_ptr<ado::Connection>& connection, const std::function<bool()>& work);

} // namespace Korvane
