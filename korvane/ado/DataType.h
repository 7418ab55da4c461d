#pragma once

namespace Korvane::ado {

/// The type of a column, with its usual code. Every provider maps its own declared types to these and back.
enum class DataType : int {
    Empty = 0,
    SmallInt = 2,
    Integer = 3,
    Single = 4,
    Double = 5,
    Currency = 6,
    Date = 7,
    Boolean = 11,
    BigInt = 20,
    Numeric = 131,
    VarWChar = 202,
    LongVarWChar = 203,
    LongVarBinary = 205,
};

/// Whether a null of that type reads as the number 0 (otherwise as the empty text): the types 2, 3, 4, 5, 6,
/// 11, 131.
bool IsNumericField(DataType type);

} // namespace Korvane::ado
