#pragma once

#include "gallery/GalleryWindow.h"
#include "shared/Journey.h"
#include "shared/Tour.h"

namespace Gallery {

/// What a tour of the gallery has at hand.
struct Journey : Apps::Journey {
    Journey(GalleryWindow& shown, const QString& directory)
        : Apps::Journey(shown, directory), window(shown) {}

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

    GalleryWindow& window;
};

using Step = Apps::Step<Journey>;

/// The steps of the tour, in their order.
const std::vector<Step>& steps();

} // namespace Gallery
