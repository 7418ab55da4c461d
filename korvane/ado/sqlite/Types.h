#pragma once

#include <korvane/ado/DataType.h>

#include <cstdint>
#include <string_view>

namespace Korvane::ado::sqlite {

/// A declared type in the terms of a recordset.
struct DeclaredType {
    DataType type = DataType::VarWChar;
    std::int32_t size = 0; ///< characters; 0 when the type has no length
};

/// What a column's declared type means: "VARCHAR(50)", "datetime", "Boolean". A type of no known name goes by
/// the letters in it, as the engine's own affinity does; no type at all is Empty: such a column keeps
/// whatever it is given.
DeclaredType declaredType(std::string_view declaration);

} // namespace Korvane::ado::sqlite
