#include <korvane/controls/nippanel/StructureLimits.h>

#include <korvane/ado/Catalog.h>
#include <korvane/runtime/RuntimeError.h>

#include <algorithm>

namespace Korvane {

namespace {

std::int32_t sizeOf(const ado::Catalog& catalog, std::string_view table, std::string_view column) {
    try {
        return std::max(0, catalog.Tables().Item(table).Columns().Item(column).DefinedSize());
    } catch (const RuntimeError&) {
        return 0;
    }
}

} // namespace

StructureLimits readLimits(const std::shared_ptr<ado::Connection>& connection) {
    const ado::Catalog catalog(connection);
    return {sizeOf(catalog, "DBFieldGroups", "GroupName"), sizeOf(catalog, "DBFields", "FieldName"),
            sizeOf(catalog, "DBFields", "FieldCaption"), sizeOf(catalog, "DBFieldValues", "FieldValue")};
}

} // namespace Korvane
