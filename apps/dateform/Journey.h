#pragma once

#include "dateform/Speaker.h"
#include "dateform/TestForm.h"
#include "shared/Journey.h"
#include "shared/Tour.h"

namespace DateForm {

/// What a tour of the form has at hand.
struct Journey : Apps::Journey {
    Journey(TestForm& form, Speaker& voice, const QString& directory)
        : Apps::Journey(form, directory), speaker(voice) {}

    Korvane::axDate& date() { return part<Korvane::axDate>(QStringLiteral("axDate")); }

    /// Goes to a text box of the form and leaves the text in place of what it held.
    void write(const QString& box, const QString& text);

    /// Goes back to the date control from the box after it.
    void enterDate();

    /// Fails unless the date control holds this date, and the part so named has the focus.
    void requireDate(const QString& wholeDate, const QString& focus);

    /// Does something that brings up "Date Error", which must read as given; takes a picture and closes it.
    void closeDateError(const std::function<void()>& deed, const QString& message, const QString& picture);

    Speaker& speaker;
};

using Step = Apps::Step<Journey>;

} // namespace DateForm
