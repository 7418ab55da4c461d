#include "clinic/sample/SampleClinic.h"

#include "clinic/sample/CourseOfCare.h"
#include "clinic/sample/NipStructure.h"
#include "clinic/sample/RowInsert.h"
#include "clinic/sample/SampleForms.h"

#include <korvane/ado/Transaction.h>

#include <algorithm>
#include <array>

namespace Clinic {

namespace {

using Korvane::Date;
using Korvane::ado::Connection;

struct Visit {
    Date date;
    std::size_t patient = 0;
};

void insertPeople(Batch& batch) {
    for (const Provider& p : sampleProviders()) {
        RowInsert row;
        row.add("ProviderID", p.id).add("ProviderType", p.type).add("FirstName", p.firstName);
        row.add("LastName", p.lastName).add("Suffix", p.suffix);
        row.into(batch, "Provider");
    }
    for (const Patient& p : samplePatients()) {
        RowInsert row;
        row.add("PatientID", p.id).add("LastName", p.lastName).add("FirstName", p.firstName);
        row.add("BirthDate", p.birthDate).add("Sex", p.sex).add("Phone", p.phone).add("Email", p.email);
        row.into(batch, "Patient");
    }
}

// In office hours: working days from 8:00 on, by quarters of an hour.
Date appointment(int day, Random& random) {
    constexpr int saturday = 6;
    int weekday = Date(day).parts().weekday;
    for (; weekday == 0 || weekday == saturday; weekday = Date(++day).parts().weekday) {
    }
    const Date::Parts parts = Date(day).parts();
    return Date::of(parts.year, parts.month, parts.day, random.between(8, 16), 15 * random.between(0, 3));
}

// In the order of time, so that a later encounter has the greater identifier.
std::vector<Visit> planVisits(Random& random) {
    const auto first = static_cast<int>(Date::of(2023, 11, 13).dayNumber());
    const auto last = static_cast<int>(Date::of(2026, 11, 13).dayNumber());
    std::vector<Visit> visits;
    for (std::size_t patient = 0; patient < samplePatients().size(); ++patient)
        for (int day = first + random.between(0, 60); day < last; day += random.between(28, 128))
            visits.push_back({appointment(day, random), patient});
    std::stable_sort(visits.begin(), visits.end(),
                     [](const Visit& a, const Visit& b) { return a.date.seconds() < b.date.seconds(); });
    return visits;
}

void insertEncounter(Batch& batch, std::int32_t id, const Visit& visit, Random& random) {
    static constexpr std::array reasons{"Follow-up",      "Annual examination", "Blood pressure check",
                                        "Acute visit",    "Laboratory results", "Depression follow-up",
                                        "Patient's call", "Medication review",  ""};
    RowInsert row;
    row.add("EncounterID", id).add("EncounterMethodID", random.between(1, 3));
    row.add("PatientID", samplePatients()[visit.patient].id)
        .add("ProviderID", random.pick(sampleProviders()).id);
    row.add("ForeignProviderID", 0).add("LocationID", random.between(1, 2)).add("EncounterDate", visit.date);
    row.add("Outgoing", random.chance(80)).add("Description", random.pick(reasons)).add("Transport", 0);
    row.into(batch, "Encounter");
}

void insertNip(Batch& batch, std::int32_t encounter, const std::vector<FormDefinition>& forms,
               CourseOfCare& course, Date day) {
    for (std::size_t i = 0; i < forms.size(); ++i) {
        const std::vector<std::string> answers = course.answers(forms[i], day);
        RowInsert row;
        row.add("EncounterID", encounter);
        for (std::size_t f = 0; f < answers.size(); ++f)
            row.add(forms[i].fields[f].name, answers[f]);
        row.into(batch, dataTable(i));
    }
    course.advance();
}

void insertEncounters(Batch& batch, const std::vector<FormDefinition>& forms) {
    constexpr std::uint64_t seed = 20261113;
    Random random(seed);
    const std::vector<Visit> visits = planVisits(random);
    std::vector<CourseOfCare> courses;
    for (const Patient& patient : samplePatients())
        courses.emplace_back(patient, random);
    std::int32_t id = 0;
    for (const Visit& visit : visits) {
        insertEncounter(batch, ++id, visit, random);
        insertNip(batch, id, forms, courses[visit.patient], visit.date);
    }
}

} // namespace

void installSample(Connection& connection) {
    const std::vector<FormDefinition> forms = sampleForms();
    Korvane::ado::Transaction work(connection);
    installTables(connection);
    writeStructure(connection, forms);
    Batch batch(connection);
    insertPeople(batch);
    insertEncounters(batch, forms);
    batch.run();
    work.commit();
}

} // namespace Clinic
