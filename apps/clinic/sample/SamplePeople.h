#pragma once

#include <korvane/runtime/Date.h>

#include <cstdint>
#include <string>
#include <vector>

namespace Clinic {

struct Provider {
    std::int32_t id;
    std::string type, firstName, lastName, suffix;
};

struct Patient {
    std::string id, lastName, firstName;
    Korvane::Date birthDate;
    std::string sex, phone, email;
};

/// Invented people. Their names are of the kinds that break things: an apostrophe, other alphabets, marks,
/// a hyphen, one letter, more letters than a column is wide.
const std::vector<Provider>& sampleProviders();
const std::vector<Patient>& samplePatients();

} // namespace Clinic
