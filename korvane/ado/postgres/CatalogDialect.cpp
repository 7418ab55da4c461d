#include <korvane/ado/postgres/CatalogDialect.h>

namespace Korvane::ado::postgres {

std::string CatalogDialect::tablesQuery() const {
    return "Select c.relname From pg_catalog.pg_class c "
           "Where c.relkind In ('r','p') And pg_catalog.pg_table_is_visible(c.oid) "
           "And c.relnamespace<>'pg_catalog'::pg_catalog.regnamespace Order By c.relname";
}

} // namespace Korvane::ado::postgres
