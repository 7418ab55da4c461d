#pragma once

#include "Size.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <span>
#include <string>

namespace Korvane::Bench {

/// Where a measured database is: a file, or on a server as far away as a round trip takes longer.
struct Place {
    const char* suffix; ///< of the name of what is measured there
    bool onServer = true;
    std::chrono::milliseconds roundTrip{0};
};

inline constexpr Place file{"", false};
inline constexpr std::array serverPlaces{Place{"@server"}, Place{"@1ms", true, std::chrono::milliseconds(1)},
                                         Place{"@10ms", true, std::chrono::milliseconds(10)}};
inline constexpr std::array serverSizes{Size{20, 40}, Size{50, 100}};

/// Whether there is a server to measure; the environment says so, as for the tests.
bool hasServer();
/// The address of a database of the server, seen from a place.
std::string serverAddress(const Place& place, const std::string& database);
/// The round trips made to a place so far; 0 where they are not counted, which is where there is no delay.
std::size_t tripsTo(const Place& place);

} // namespace Korvane::Bench
