#include <korvane/data/Tables.h>
#include <korvane/nip/cNIP.h>
#include <korvane/records/Encounter.h>

#include <iostream>

int main() {
    const auto db = Korvane::ado::open("sqlite::memory:");
    Korvane::installTables(*db);
    Korvane::Encounter encounter;
    encounter.Connection(db);
    encounter.PatientID("P-0042");
    encounter.ProviderID(3);
    Korvane::cNIP nip;
    if (!encounter.Save() || !nip.LoadStructure(db)) return 1;
    std::cout << "stored " << encounter.EncounterID() << '\n';
    return encounter.EncounterID() == 1 ? 0 : 1;
}
