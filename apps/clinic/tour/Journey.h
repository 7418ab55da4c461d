#pragma once

#include "clinic/tour/Form.h"
#include "clinic/tour/Ledger.h"
#include "shared/Journey.h"

#include <QMessageBox>
#include <QString>

#include <functional>
#include <vector>

namespace Clinic {

/// What was entered into one Nip.
struct Visit {
    struct Entry {
        FieldName name;
        QString value; ///< as the database holds it
    };
    std::vector<Entry> entries;
    QString description; ///< of its encounter
    qint32 encounter = -1;
};

/// What a tour has at hand, and what it must find in the end.
class Journey : public Apps::Journey {
  public:
    Journey(QWidget& clinicWindow, const QString& database, const QString& directory);

    /// Does something that brings up a question of the panel, which must read as given (English, or what the
    /// panel has for it in another language); takes a picture of it when a title is given, and presses the
    /// button.
    void answer(const std::function<void()>& deed, const char* question, QMessageBox::StandardButton button,
                const QString& picture = {});

    bool isNipOpen() const;
    void requireNipOpen(bool open) const;

    /// Fails unless the header above the panel names the patient.
    void requirePatient(const QString& name, const QString& id);

    /// Chooses a patient as a user does: by a search and the Down key.
    void choosePatient(const QString& search);

    /// The chosen row of a list: the text of one of its columns.
    QString chosenCell(const char* list, int column);

    /// Opens the encounter that is chosen in the list, by keyboard.
    void openChosenEncounter();

    /// Fails unless every control shows, and every row holds, what was entered.
    void requireShown();
    void requireStored(const Visit& entered);
    void requireStored() { requireStored(visit); }

    QWidget& window;
    Ledger ledger;
    Form form;

    Visit visit;                       ///< the one at hand
    Visit earlier;                     ///< the one before the form was customized
    std::vector<StoredRow> rowsBefore; ///< and all that was stored then
};

} // namespace Clinic
