#pragma once

#include <korvane/ado/CatalogDialect.h>

namespace Korvane::ado::sqlite {

class CatalogDialect final : public ado::CatalogDialect {
  public:
    std::string tablesQuery() const override;
};

} // namespace Korvane::ado::sqlite
