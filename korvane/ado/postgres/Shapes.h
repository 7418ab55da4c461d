#pragma once

#include <korvane/ado/ResultColumns.h>
#include <korvane/ado/ShapeCache.h>
#include <korvane/ado/postgres/Types.h>
#include <korvane/ado/sql/Translation.h>

#include <deque>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Korvane::ado::postgres {

/// A shape as the server knows it: prepared for values of certain types.
struct Form {
    std::vector<TypeId> types;
    std::string name;
    bool prepared = false;
    std::shared_ptr<const ResultColumns> columns; ///< set when it first returned rows
};

/// All statements that differ in their values only.
struct Shape {
    std::string text;
    sql::Translation translation;
    sql::Effect effect = sql::Effect::None;
    std::string table; ///< of an Insert or Update: the table it writes, in lower case; of what changes the
                       ///< schema: the table it changes, empty when it may be any
    bool isInsert = false;
    bool commits = false;             ///< Commit, or another word for it
    bool controlsTransaction = false; ///< that, or Begin, Savepoint, ...
    std::deque<Form> forms;           ///< most often one: it is the values' columns that decide
    std::shared_ptr<std::vector<std::string>> dropped; ///< names that the server may forget

    bool forgotten = false; ///< no longer kept; who still uses it drops it once more

    void drop() {
        forgotten = true;
        for (Form& form : forms) {
            if (std::exchange(form.prepared, false)) dropped->push_back(form.name);
        }
    }
};

/// The shapes that a session keeps.
using Shapes = ShapeCache<Shape>;

} // namespace Korvane::ado::postgres
