#include "Place.h"

#include "DelayProxy.h"

#include <cstdlib>
#include <map>

namespace Korvane::Bench {

namespace {

std::string variable(const char* name, const char* otherwise) {
    const char* value = std::getenv(name);
    return value ? value : otherwise;
}

DelayProxy& proxyTo(const Place& place) {
    static std::map<std::chrono::milliseconds, DelayProxy> proxies;
    return proxies
        .try_emplace(place.roundTrip, variable("PGHOST", "localhost"), std::stoi(variable("PGPORT", "5432")),
                     place.roundTrip)
        .first->second;
}

bool isDelayed(const Place& place) {
    return place.roundTrip.count() > 0;
}

} // namespace

bool hasServer() {
    return std::getenv("KORVANE_TEST_POSTGRES") != nullptr;
}

// Without encryption on either side, so that trips can be counted.
std::string serverAddress(const Place& place, const std::string& database) {
    const std::string host =
        isDelayed(place) ? "127.0.0.1:" + std::to_string(proxyTo(place).port()) : std::string();
    return "postgresql://" + host + "/" + database + "?sslmode=disable&gssencmode=disable";
}

std::size_t tripsTo(const Place& place) {
    return isDelayed(place) ? proxyTo(place).trips() : 0;
}

} // namespace Korvane::Bench
