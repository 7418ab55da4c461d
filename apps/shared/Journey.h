#pragma once

#include "shared/Album.h"
#include "shared/Failure.h"
#include "shared/Hand.h"

#include <QStringList>

namespace Apps {

/// What a tour of a window has at hand. The journey of an application adds what is done in that window.
class Journey {
  public:
    Journey(QWidget& window, const QString& directory) : album(window, directory), mWindow(window) {}

    /// A part of the window in view, by its object name. Fails when there is none.
    template <typename Widget = QWidget>
    Widget& part(const QString& name) const {
        for (auto* each : mWindow.findChildren<Widget*>(name))
            if (each->isVisible()) return *each;
        throw Failure(QStringLiteral("There is no %1 in view.").arg(name));
    }

    /// Fails unless the list of events in view (`EventList`) ends with these.
    void requireEvents(const QStringList& last) const;

    Hand hand;
    Album album;

  private:
    QWidget& mWindow;
};

} // namespace Apps
