#pragma once

#include "dateform/Speaker.h"
#include "dateform/TestForm.h"
#include "shared/Album.h"
#include "shared/Failure.h"
#include "shared/Hand.h"
#include "shared/Tour.h"

namespace DateForm {

/// What a tour of the form has at hand.
struct Journey {
    Journey(TestForm& window, Speaker& voice, const QString& directory)
        : form(window), speaker(voice), album(window, directory) {}

    /// A part of the form, by its object name. Fails when there is none in view.
    template <typename Widget = QWidget>
    Widget& part(const QString& name) {
        auto* widget = form.findChild<Widget*>(name);
        Apps::require(widget && widget->isVisible(), QStringLiteral("There is no %1 in view.").arg(name));
        return *widget;
    }

    Korvane::axDate& date() { return part<Korvane::axDate>(QStringLiteral("axDate")); }

    /// Goes to a text box of the form and leaves the text in place of what it held.
    void write(const QString& box, const QString& text);

    /// Goes back to the date control from the box after it.
    void enterDate();

    /// Fails unless the date control holds this date, and the part so named has the focus.
    void requireDate(const QString& wholeDate, const QString& focus);

    /// Fails unless the list of events ends with these.
    void requireEvents(const QStringList& last);

    /// Does something that brings up "Date Error", which must read as given; takes a picture and closes it.
    void closeDateError(const std::function<void()>& deed, const QString& message, const QString& picture);

    TestForm& form;
    Speaker& speaker;
    Apps::Hand hand;
    Apps::Album album;
};

using Step = Apps::Step<Journey>;

} // namespace DateForm
