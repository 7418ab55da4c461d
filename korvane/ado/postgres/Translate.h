#pragma once

#include <korvane/ado/sql/Tables.h>
#include <korvane/ado/sql/Translation.h>

#include <string_view>

namespace Korvane::ado::postgres {

/// Turns a statement of the library's dialect into PostgreSQL's own:
///
/// - names of tables and columns, in any case and with any marks, are written as the catalog spells them; a
/// name
///   in marks that is not known there (an alias) is taken in lower case, as the engine takes plain names;
/// - `Top n` becomes a Limit; values take the form of the column that they meet;
/// - `Like` does not count case and has no escape character unless one is named;
/// - Null sorts before everything else; Max and Min of a boolean column are its Or and its And;
/// - Create and Alter Table name types as the engine does.
///
/// A `?` stands for a value that was lifted out and becomes `$1`, `$2`, ... Whatever it does not know stays
/// as it is. Raises what `toColumn` raises. With `addedColumns` the outermost select list gets these behind
/// its own.
///
///     translate("Select Top 1 [Name] From Visit Where [Day]>#11/15/2026#", tables).text;
///     // "Select "name" From Visit Where "day">Timestamp '2026-11-15 00:00:00' Limit 1"
sql::Translation translate(std::string_view statement, const sql::Tables& tables,
                           std::string_view addedColumns = {});

} // namespace Korvane::ado::postgres
