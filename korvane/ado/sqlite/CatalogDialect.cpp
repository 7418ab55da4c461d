#include <korvane/ado/sqlite/CatalogDialect.h>

namespace Korvane::ado::sqlite {

std::string CatalogDialect::tablesQuery() const {
    return "Select name From pragma_table_list Where schema='main' And type In ('table','virtual') "
           "And name Not Like 'sqlite\\_%' Escape '\\' Order By name";
}

} // namespace Korvane::ado::sqlite
