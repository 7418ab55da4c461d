#pragma once

#include "gallery/GalleryWindow.h"
#include "shared/Album.h"
#include "shared/Failure.h"
#include "shared/Hand.h"
#include "shared/Tour.h"

namespace Gallery {

/// What a tour of the gallery has at hand.
struct Journey {
    Journey(GalleryWindow& shown, const QString& directory) : window(shown), album(shown, directory) {}

    /// A part of the page in view, by its object name. Fails when there is none.
    template <typename Widget = QWidget>
    Widget& part(const QString& name) {
        auto* widget = window.page().findChild<Widget*>(name);
        Apps::require(widget && widget->isVisible(), QStringLiteral("There is no %1 in view.").arg(name));
        return *widget;
    }

    /// Goes to the page of a control by Ctrl+Tab.
    void turnTo(const QString& className);

    /// Goes to the value of a property in the table, by keys.
    void goTo(const QString& property);
    /// Writes over the value of a property.
    void set(const QString& property, const QString& value);
    /// Presses a button that has the focus.
    void push(const QString& button);

    /// Fails unless the property of the control in view reads so.
    void requireProperty(const char* name, const QVariant& value);
    /// Fails unless the list of events ends with these.
    void requireEvents(const QStringList& last);

    GalleryWindow& window;
    Apps::Hand hand;
    Apps::Album album;
};

using Step = Apps::Step<Journey>;

/// The steps of the tour, in their order.
const std::vector<Step>& steps();

} // namespace Gallery
