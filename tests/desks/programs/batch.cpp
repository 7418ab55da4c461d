// A desk without a window: it saves with the records and the model, in one of several ways.

#include "Job.h"

#include <korvane/ado/Transaction.h>
#include <korvane/nip/cNIP.h>
#include <korvane/records/Attachment.h>
#include <korvane/records/Encounter.h>

#include <functional>
#include <memory>

using namespace Korvane;
using namespace Korvane::Testing;

namespace {

void setAll(cNIP& nip, const std::string& text) {
    for (std::int16_t group = 1; group <= nip.GroupCount(); ++group)
        for (std::int16_t field = 1; field <= nip.FieldCount(group); ++field)
            nip.value(group, field, text);
}

/// An encounter with its values and a file.
struct Visit {
    Visit(const std::shared_ptr<ado::Connection>& db, cNIP& model, const std::string& patient,
          const std::string& token)
        : nip(model), connection(db) {
        nip.Load(-1, patient, true);
        setAll(nip, token);
        encounter.Connection(db);
        encounter.PatientID(patient);
        encounter.ProviderID(1);
        encounter.Description(token);
        attachment.Connection(db);
        attachment.FileName(token);
    }

    /// As a simple host does it: statement by statement, and it does not ask whether the encounter is stored.
    bool saveByStatement() {
        if (!encounter.Save() || !nip.Save()) return false;
        attachment.EncounterID(encounter.EncounterID());
        return attachment.Save() && attachment.Stored();
    }

    bool saveAsOne() {
        const Encounter encounterBefore = encounter;
        const Attachment attachmentBefore = attachment;
        try {
            ado::Transaction work(*connection);
            if (encounter.Save() && encounter.Stored() && saveByStatement()) {
                work.commit();
                return true;
            }
        } catch (const RuntimeError&) {
            // Told like any other failure.
        }
        encounter = encounterBefore;
        attachment = attachmentBefore;
        return false;
    }

    bool isNowhere() const { return encounter.EncounterID() == -1; }

    cNIP& nip;
    std::shared_ptr<ado::Connection> connection;
    Encounter encounter;
    Attachment attachment;
    EventHandle listener =
        encounter.SavedNewEncounter.connect([this] { nip.EncounterID(encounter.EncounterID()); });
};

void storeVisits(Job& job, const std::shared_ptr<ado::Connection>& db, cNIP& nip) {
    for (int i = 0; i < job.visits; ++i) {
        Visit visit(db, nip, job.patient(i), job.token(i));
        const auto save = [&] {
            return job.how == "statements" ? visit.saveByStatement() : visit.saveAsOne();
        };
        bool stored = save();
        for (; !stored && !(job.givesUp(i) && visit.isNowhere()); stored = save())
            job.refused(i);
        if (stored)
            job.stored(i, visit.encounter.EncounterID(), visit.attachment.AttachmentID().text());
        else
            job.dropped(i);
    }
}

/// All desks write the values of the same encounters, which are stored and have none yet.
void storeValues(Job& job, cNIP& nip) {
    for (int i = 0; i < job.visits; ++i) {
        nip.Load(i + 1, job.patient(i), false);
        setAll(nip, job.token(i));
        while (!nip.Save())
            job.refused(i);
        job.stored(i, i + 1, "0");
    }
}

} // namespace

int main(int, char** argv) {
    Job job(argv);
    const auto db = ado::open(job.address);
    if (job.how == "serializable")
        db->Execute("Set Session Characteristics As Transaction Isolation Level Serializable");
    cNIP nip;
    if (!nip.LoadStructure(db)) return 1;
    job.awaitOthers();
    job.how == "values" ? storeValues(job, nip) : storeVisits(job, db, nip);
    return 0;
}
