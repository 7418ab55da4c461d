#pragma once

#include <korvane/ado/CatalogDialect.h>

namespace Korvane::ado::postgres {

class CatalogDialect final : public ado::CatalogDialect {
  public:
    std::string tablesQuery() const override;
};

} // namespace Korvane::ado::postgres
