#pragma once

#include <korvane/ado/sqlite/CompiledStatement.h>
#include <korvane/ado/sqlite/Translate.h>

#include <cstddef>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Korvane::ado::sqlite {

/// The columns of a result, found by name without regard to case.
class ResultColumns {
  public:
    explicit ResultColumns(std::vector<ColumnInfo> columns);
    const std::vector<ColumnInfo>& all() const { return mColumns; }
    /// -1 when there is none of that name; the first of several.
    int indexOf(std::string_view name) const;

  private:
    std::size_t slotOf(std::string_view name) const;
    std::vector<ColumnInfo> mColumns;
    std::vector<int> mSlots; ///< open addressing; -1 is free
};

/// All statements that differ in their values only: what is known of them once they have been read.
struct Shape {
    std::string text;
    Translation translation;
    bool meetsColumns = false;                    ///< some value meets a known column
    bool countsRows = false;                      ///< Insert, Update or Delete
    bool changesSchema = false;                   ///< anything but these and queries
    std::shared_ptr<const ResultColumns> columns; ///< set when it first returned rows
    CompiledStatement idle;                       ///< a compiled form that nobody uses at the moment
    bool forgotten = false; ///< no longer kept; the schema has changed, or there was no room
};

/// A compiled statement in use. It goes back with `Shapes::giveBack`, or ends with the lease.
struct Lease {
    std::shared_ptr<Shape> shape;
    CompiledStatement statement;
    explicit operator bool() const { return shape != nullptr; }
};

/// Keeps the shapes used last, each with at most one idle compiled statement.
class Shapes {
  public:
    /// The shape of that text; null when it is not kept.
    std::shared_ptr<Shape> find(std::string_view text);
    /// Keeps a shape; the one not used for longest makes room.
    void keep(std::shared_ptr<Shape> shape);
    void giveBack(Lease lease);
    void forget();
    void limit(std::size_t most);
    std::size_t size() const { return mShapes.size(); }

  private:
    void makeRoom();
    std::size_t mMost = 512;
    std::list<std::shared_ptr<Shape>> mShapes; ///< the one used last first
    std::unordered_map<std::string_view, std::list<std::shared_ptr<Shape>>::iterator> mByText;
};

} // namespace Korvane::ado::sqlite
