#pragma once

#include <QString>

namespace Korvane {

class axDate;

/// What a host usually does with words that were dictated to a date control: a number goes into the box at
/// hand, the name of a month as its number into the month's, and the focus moves on to the next box.
///
///     connect(born, &axDate::Dictated, form, [=](const QString& words) {
///         const QString problem = placeDictated(*born, words);
///         if (!problem.isEmpty()) label->setText(problem);
///     });
///
/// Returns an empty text; for words that are neither, the sentence that tells the user what could be said:
/// nothing is changed then. Neither is it when a box does not let the focus go to the month's, which
/// `axDate::Exception` has told. What no month, day or year can be is placed as it was said, and refused when
/// the box is left. Letter case does not matter. "second" is the day, "twenty twenty six" 2026, see
/// `voice::spokenNumber`; digits are themselves.
QString placeDictated(axDate& date, const QString& words);

} // namespace Korvane
