#pragma once

#include <korvane/ado/sql/Tables.h>
#include <korvane/ado/sql/Translation.h>

#include <string_view>

namespace Korvane::ado::sqlite {

/// Turns a statement of the library's dialect into SQLite's own: `Select Top n` into Limit, dates into ISO
/// text, values into the form of the column that they meet. A `?` stands for a value that was lifted out.
/// Whatever it does not know stays as it is. Raises what `toColumn` raises. With `addedColumns` (such as
/// ",[ID]") the outermost select list gets these behind its own.
///
///     translate("Select Top 1 A From T Where D>#11/15/2026#", tables).text;
///     // "Select A From T Where D>'2026-11-15 00:00:00' Limit 1"
sql::Translation translate(std::string_view statement, const sql::Tables& tables,
                           std::string_view addedColumns = {});

} // namespace Korvane::ado::sqlite
