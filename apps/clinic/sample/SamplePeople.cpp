#include "clinic/sample/SamplePeople.h"

namespace Clinic {

namespace {

using Korvane::Date;

// Telephone numbers that no exchange gives out, mail addresses of a domain that nobody can own.
std::string phone(int line) {
    return "(555) 010-0" + std::to_string(100 + line);
}

std::string email(int line) {
    return "patient" + std::to_string(line) + "@example.org";
}

Patient patient(int line, const char* lastName, const char* firstName, Date birthDate, const char* sex) {
    const std::string digits = std::to_string(10000 + line).substr(1);
    return {"P-" + digits, lastName, firstName, birthDate, sex, phone(line), email(line)};
}

std::vector<Patient> makePatients() {
    return {patient(1, "Abernathy", "Rose", Date::of(1948, 3, 2), "Female"),
            patient(2, "O'Brien", "Séamus", Date::of(1961, 11, 15), "Male"),
            patient(3, "Müller", "Jürgen", Date::of(1955, 7, 30), "Male"),
            patient(4, "李", "小龙", Date::of(1983, 11, 27), "Male"),
            patient(5, "Featherstonehaugh-Cholmondeley", "Maximiliana Wilhelmina Theodora",
                    Date::of(1939, 12, 31), "Female"),
            patient(6, "Ng", "Wei", Date::of(1990, 2, 28), "Female"),
            patient(7, "García Márquez", "Luisa", Date::of(1972, 5, 6), "Female"),
            patient(8, "Иванова", "Ольга", Date::of(1967, 10, 1), "Female"),
            patient(9, "D'Angelo", "Marco", Date::of(1978, 8, 19), "Male"),
            patient(10, "Łukasiewicz", "Zbigniew", Date::of(1944, 1, 9), "Male"),
            patient(11, "van der Meer", "Johanna", Date::of(1986, 4, 23), "Female"),
            patient(12, "Nguyễn", "Thị Hồng", Date::of(1994, 9, 12), "Female"),
            patient(13, "Smith", "John", Date::of(1958, 6, 17), "Male"),
            patient(14, "Smith", "John", Date::of(1988, 6, 17), "Male"),
            patient(15, "O", "Min-jun", Date::of(2001, 2, 14), "Male"),
            patient(16, "Wolfeschlegelsteinhausenbergerdorff", "Hubert Blaine", Date::of(1934, 8, 4), "Male"),
            patient(17, "Παπαδόπουλος", "Νίκος", Date::of(1963, 3, 25), "Male"),
            patient(18, "Åkesson", "Märta", Date::of(1951, 12, 13), "Female"),
            patient(19, "Haddad", "ليلى", Date::of(1979, 7, 7), "Female"),
            patient(20, "Okonkwo", "Chidi", Date::of(1969, 2, 1), "Male"),
            patient(21, "St. John", "Mary-Kate", Date::of(2004, 2, 29), "Female"),
            patient(22, "O'Neill-Szczęsny", "Áine", Date::of(1997, 10, 31), "Female")};
}

} // namespace

const std::vector<Provider>& sampleProviders() {
    static const std::vector<Provider> providers{{1, "Physician", "Anna", "Köhler", "MD"},
                                                 {2, "Physician", "Peter", "O'Hara", "MD"},
                                                 {3, "Nurse Practitioner", "Grace", "Mensah", "NP"},
                                                 {4, "Psychologist", "David", "Rosenberg", "PhD"},
                                                 {5, "Nurse", "Yuki", "Tanaka", ""}};
    return providers;
}

const std::vector<Patient>& samplePatients() {
    static const std::vector<Patient> patients = makePatients();
    return patients;
}

} // namespace Clinic
