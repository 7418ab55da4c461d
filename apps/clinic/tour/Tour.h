#pragma once

#include <QString>

namespace Clinic {

/// Drives the real window through the main job, with key presses and clicks, on a fresh database: chooses a
/// patient, enters a Nip with every kind of control, saves, opens it again, changes, renames and cancels;
/// then customizes the form with a group of its own and enters a Nip in it.
/// Each step leaves a numbered picture in the directory ("01-choose-a-patient.png"), and the rows that the
/// database then holds are printed. The database is "tour.db" in the directory, or the one of the address
/// given, which has to be empty: a tour never touches what is there. It stays as the tour leaves it.
///
/// What is not as it should be stops the tour and is named on standard error. 0 when all went well, else 1.
/// The pictures of one machine are the same at every run. The text size is in percent; 0 is 100.
int runTour(const QString& directory, const QString& database = {}, int textSize = 0);

} // namespace Clinic
