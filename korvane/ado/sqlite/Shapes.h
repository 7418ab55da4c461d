#pragma once

#include <korvane/ado/ResultColumns.h>
#include <korvane/ado/ShapeCache.h>
#include <korvane/ado/sqlite/CompiledStatement.h>
#include <korvane/ado/sqlite/Translate.h>

#include <memory>
#include <string>

namespace Korvane::ado::sqlite {

/// All statements that differ in their values only: what is known of them once they have been read.
struct Shape {
    std::string text;
    sql::Translation translation;
    bool meetsColumns = false;                    ///< some value meets a known column
    bool countsRows = false;                      ///< Insert, Update or Delete
    bool changesSchema = false;                   ///< anything but these and queries
    std::shared_ptr<const ResultColumns> columns; ///< set when it first returned rows
    CompiledStatement idle;                       ///< a compiled form that nobody uses at the moment
    bool forgotten = false; ///< no longer kept; the schema has changed, or there was no room

    void drop() {
        forgotten = true;
        idle = {};
    }
};

/// A compiled statement in use. It goes back with `Shapes::giveBack`, or ends with the lease.
struct Lease {
    std::shared_ptr<Shape> shape;
    CompiledStatement statement;
    explicit operator bool() const { return shape != nullptr; }
};

/// Keeps the shapes used last, each with at most one idle compiled statement.
class Shapes : public ShapeCache<Shape> {
  public:
    void giveBack(Lease lease);
};

} // namespace Korvane::ado::sqlite
