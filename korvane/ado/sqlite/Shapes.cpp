#include <korvane/ado/sqlite/Shapes.h>

#include <utility>

namespace Korvane::ado::sqlite {

void Shapes::giveBack(Lease lease) {
    if (!lease || !lease.statement) return;
    lease.statement.reset();
    if (!lease.shape->forgotten && !lease.shape->idle) lease.shape->idle = std::move(lease.statement);
}

} // namespace Korvane::ado::sqlite
