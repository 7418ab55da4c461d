#pragma once

#include <korvane/ado/Connection.h>

#include <QString>

#include <cstdint>
#include <memory>

namespace Gallery {

/// The sample clinic in memory, and one of its encounters.
struct SampleNip {
    std::shared_ptr<Korvane::ado::Connection> connection;
    QString patient;
    std::int32_t encounter = 0;
};

/// The same at every start. A RuntimeError when it cannot be made.
SampleNip makeSampleNip();

} // namespace Gallery
