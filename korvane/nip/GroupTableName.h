#pragma once

#include <span>
#include <string>
#include <string_view>

namespace Korvane {

/// The table name of a new group, from the greatest one there is (by text order; empty when there is none):
/// "NIP_Custom1" when that is empty or longer than 11 characters, else "NIP_Custom" and the number that
/// stands from its 12th character on, 0 where there is none.
///
///     tableNameAfter("");               // NIP_Custom1
///     tableNameAfter("NIP_Custom1");    // NIP_Custom0
///     tableNameAfter("NIP_Custom12");   // NIP_Custom1
std::string tableNameAfter(std::string_view greatest);

/// "NIP_Custom" and the number after the greatest among the names given; those of another form do not count.
/// Case does not count. Overflow behind 2147483647.
std::string nextTableName(std::span<const std::string> taken);

} // namespace Korvane
