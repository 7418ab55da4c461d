#include "clinic/sample/Batch.h"

#include <utility>

namespace Clinic {

void Batch::add(std::string statement) {
    constexpr std::size_t enough = 256;
    mStatements.push_back(std::move(statement));
    if (mStatements.size() >= enough) run();
}

void Batch::run() {
    const std::vector<std::string> statements = std::exchange(mStatements, {});
    mConnection.Announce(statements);
    for (const std::string& statement : statements)
        mConnection.Execute(statement);
}

} // namespace Clinic
