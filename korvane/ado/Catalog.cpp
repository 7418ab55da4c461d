#include <korvane/ado/Catalog.h>

#include <korvane/ado/CatalogDialect.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

#include <algorithm>
#include <utility>

namespace Korvane::ado {

Catalog::Catalog(std::shared_ptr<Connection> connection) : mConnection(std::move(connection)) {
    if (!mConnection) throw RuntimeError(RuntimeError::InvalidConnection);
}

std::int32_t Tables::Count() const {
    return static_cast<std::int32_t>(Names().size());
}

std::vector<std::string> Tables::Names() const {
    std::vector<std::string> names;
    const auto rows = mConnection->openNative(mConnection->catalogDialect().tablesQuery());
    for (Variant name; !rows->atEnd(); rows->moveNext()) {
        rows->value(0, name);
        names.push_back(name.text());
    }
    return names;
}

bool Tables::Exists(std::string_view name) const {
    return std::ranges::any_of(Names(), [&](const std::string& known) { return sameName(known, name); });
}

} // namespace Korvane::ado
