#include "gallery/SampleNip.h"

#include "clinic/sample/SampleClinic.h"

#include <korvane/controls/container/Text.h>
#include <korvane/data/SQLData.h>

namespace Gallery {

SampleNip makeSampleNip() {
    auto connection = Korvane::ado::open("sqlite::memory:");
    Clinic::installSample(*connection);
    Korvane::SQLData latest;
    latest.SQL(connection, "Select Top 1 EncounterID, PatientID From Encounter Order By EncounterID Desc",
               false, Korvane::AccessMode::Read);
    return {connection, Korvane::qt(latest.Data("PatientID").textOrEmpty()),
            latest.Data("EncounterID").toInt32()};
}

} // namespace Gallery
