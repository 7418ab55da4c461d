#include <korvane/ado/Table.h>

#include <korvane/ado/TableState.h>

namespace Korvane::ado {

Table::Table(std::string_view name) : mState(std::make_shared<TableState>()) {
    mState->name = name;
}

const std::string& Table::Name() const {
    return mState->name;
}

} // namespace Korvane::ado
