#pragma once

#include "support/RecordingConnection.h"
#include "support/RecordingInteraction.h"
#include "support/ScratchDatabase.h"
#include "support/ScratchDir.h"
#include "support/StoppedClock.h"

#include <korvane/ado/Recordset.h>
#include <korvane/data/Tables.h>

#include <memory>
#include <string>
#include <string_view>

namespace Korvane::Testing {

/// A real database of its own with the library's tables, a stopped clock, a recording user, and the
/// application path beside them. Use it as a member or a base of a fixture.
struct ScratchClinic {
    StoppedClock clock;
    ScratchDir dir{ScratchDir::AsAppPath};
    RecordedInteraction user;
    ScratchDatabase database{dir.file("clinic.db")};
    std::shared_ptr<RecordingConnection> db =
        std::make_shared<RecordingConnection>(ado::open(database.address()));

    ScratchClinic() { installTables(*db->real()); }

    /// The rows of a query past the record: fields joined with "|" (Null as "NULL"), rows with a blank.
    std::string rows(std::string_view statement) const {
        const auto rs = ado::Recordset::create();
        rs->Open(statement, db->real());
        std::string text;
        for (; !rs->Eof(); rs->MoveNext()) {
            if (!text.empty()) text += " ";
            for (int i = 0; i < rs->FieldCount(); ++i) {
                const Variant value = rs->Value(i);
                text += (i ? "|" : "") + (value.isNull() ? "NULL" : value.text());
            }
        }
        return text;
    }
};

} // namespace Korvane::Testing
