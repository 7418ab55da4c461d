#pragma once

#include <korvane/ado/DataType.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Korvane::ado::postgres {

/// The engine's number of a type.
using TypeId = unsigned int;

namespace types {
inline constexpr TypeId unknown = 0; ///< of a parameter: what its place asks for
inline constexpr TypeId boolean = 16;
inline constexpr TypeId bigInteger = 20;
inline constexpr TypeId integer = 23;
inline constexpr TypeId single = 700;
inline constexpr TypeId real = 701;
inline constexpr TypeId blankPadded = 1042;
inline constexpr TypeId timestamp = 1114;
inline constexpr TypeId numeric = 1700;
} // namespace types

/// A type of the engine in the terms of a recordset.
struct NativeType {
    DataType type = DataType::VarWChar;
    std::int32_t size = 0; ///< characters; 0 when the type has no length
};

/// What a column of the engine's own type is here. `modifier` is what the engine keeps beside the type: the
/// length of a VarChar, the digits of a Numeric (19 digits with 4 decimals are a currency). A type that is
/// not known is read and written as text.
NativeType nativeType(TypeId type, int modifier);

/// How the engine calls a type that a Create or Alter Table names, in lower case, where it has another name
/// for it: `DateTime` is Timestamp, `Memo` is Text. Nothing when the name may stay.
std::optional<std::string_view> nativeTypeName(std::string_view declared);

} // namespace Korvane::ado::postgres
